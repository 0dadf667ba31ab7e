#pragma once

#include "database/database_scope.h"
#include "reporting/report_content.h"

namespace tallix {

/// The content of custom reports. Of the settings they use nothing.
class CustomContent : public ReportContent {
public:
    CustomContent(Application& application, RunProgress& progress, const CustomReport& report)
        : application_(application), progress_(progress), report_(report) {}

    const RunRules& Rules() const override { return rules_; }
    const ReportSettings& Settings() const override { return settings_; }
    PageShape Shape() const override;
    std::vector<std::string_view> Heads() const override;
    std::string Statement(const DatabaseScope& database, const Site& site) const override;
    Written WriteRows(const DatabaseScope& database, const Site& site, const ado::Rows& calls,
                      PageWriter& page) const override;

private:
    Application& application_;
    RunProgress& progress_;
    const CustomReport& report_;
    const RunRules rules_{};
    const ReportSettings settings_{.alignment = "center"};
};

}  // namespace tallix
