// The content of reports that are files of keys: preset reports at the screen, and
// scheduled ones. The two differ by their rules, which are data.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "database/database_scope.h"
#include "reporting/catalogue.h"
#include "reporting/query_rules.h"
#include "reporting/record_filters.h"
#include "reporting/report_content.h"

namespace tallix {

struct KeyedRules {
    RunRules run{};
    const QueryRules& query;
    FilterRules filters{};
    bool honoursTop = false;           ///< the key `Top` bounds the records looked at
    bool writesTitle = false;          ///< the key `Title` gives a line above the table
    std::string_view fixedCurrency{};  ///< in place of the session's; empty for that
};

class KeyedContent : public ReportContent {
public:
    const RunRules& Rules() const override { return rules_.run; }
    const ReportSettings& Settings() const override { return settings_; }
    std::string Title() const override;
    std::vector<std::string_view> Heads() const override;
    std::string Statement(const DatabaseScope& database, const Site& site) const override;
    Written WriteRows(const DatabaseScope& database, const Site& site, const ado::Rows& calls,
                      PageWriter& page) const override;

protected:
    /// Where a run finds its report: the file of keys, the switches that take them, and the
    /// filter values.
    struct Source {
        ReportFlags& flags;
        const std::filesystem::path& file;
        const RunInputs& inputs;
    };

    KeyedContent(Application& application, RunProgress& progress, const KeyedRules& rules,
                 const Source& source);

private:
    Application& application_;
    RunProgress& progress_;
    const KeyedRules& rules_;
    ReportFlags& flags_;
    const RunInputs& inputs_;
    ReportSettings settings_;
    ReportOptions options_;
};

class PresetContent : public KeyedContent {
public:
    PresetContent(Application& application, RunProgress& progress, const PresetRun& run);

    PageShape Shape() const override;
    std::optional<Message> Refusal() const override;
    std::string Graph(const ado::Rows& calls, std::int64_t next) const override;

private:
    const PresetRun& run_;
};

class UnattendedContent : public KeyedContent {
public:
    UnattendedContent(Application& application, RunProgress& progress, const UnattendedRun& run);

    PageShape Shape() const override { return PageShape::CommaText; }
};

}  // namespace tallix
