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

std::string CustomContent::Statement(const Site&) const {
    return BuildCustomQuery(application_.session, report_.extension);
}

PageTotals CustomContent::WriteRows(const Site&, ado::Recordset& calls, PageWriter& page) const {
    if (!calls.IsOpen()) return {};
    CustomRows rows(application_.session, application_.events, report_, calls);
    return {.records = WalkRecords(calls.RecordCount(), progress_, calls, rows, page)};
}

}  // namespace tallix
