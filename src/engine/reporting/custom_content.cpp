#include "reporting/custom_content.h"

#include "reporting/custom_rows.h"
#include "reporting/query_builder.h"
#include "reporting/record_walk.h"

namespace tallix {

PageShape CustomContent::Shape() const {
    const bool inApplication = report_.destination == Destination::InExternalApplication;
    return inApplication ? PageShape::CommaText : PageShape::Bare;
}

std::vector<std::string_view> CustomContent::Heads() const {
    std::vector<std::string_view> heads;
    for (const ReportColumn* column : ShownColumns(report_)) heads.push_back(column->custom.label);
    return heads;
}

std::string CustomContent::Statement(const DatabaseScope& database, const Site&) const {
    return BuildCustomQuery(database, report_.extension);
}

ReportContent::Written CustomContent::WriteRows(const DatabaseScope& database, const Site&,
                                                const ado::Rows& calls, PageWriter& page) const {
    CustomRows rows(database, application_.events, report_, calls);
    const auto [written, next] = WalkRecords(calls.Count(), progress_, calls, rows, page);
    return {.totals = {.records = written}, .next = next};
}

}  // namespace tallix
