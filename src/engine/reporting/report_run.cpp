#include "reporting/report_run.h"

#include <algorithm>
#include <span>
#include <string>
#include <system_error>

#include "costing/tariff.h"
#include "database/recordset.h"
#include "failures/attempt.h"
#include "platform/paths.h"
#include "reporting/bar_graph.h"
#include "reporting/cover_pages.h"
#include "reporting/custom_rows.h"
#include "reporting/preset_request.h"
#include "reporting/query_builder.h"
#include "reporting/report_columns.h"
#include "session/access_log.h"
#include "session/database.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kPageName = "rpt.tmp";
constexpr std::string_view kCommaTextName = "rpt.csv";
constexpr std::string_view kPageFiles[] = {kCommaTextName, kPageName};
constexpr std::string_view kCoverFiles[] = {kCoverName, kBackPageName};

// The chart's size in pixels.
constexpr int kGraphHeight = 200;
constexpr int kBarWidth = 6;

PageShape ShapeOf(const RunDescription& description, bool coloured) {
    if (description.commaText || description.rules.commaTextOnly) return PageShape::CommaText;
    if (description.custom) return PageShape::Bare;
    return coloured ? PageShape::Coloured : PageShape::Plain;
}

// A custom report has nothing of the settings but its look, which is always the same.
ReportSettings SettingsOf(const RunDescription& description, const SettingsStore& settings) {
    return description.custom ? ReportSettings{.alignment = "center"} : ReadReportSettings(settings);
}

/// What becomes of a record. One that is not counted does not bring the end nearer either.
enum class Verdict { Row, NoRow, NotCounted };

/// The rows of a report that is a file of keys.
class KeyedRows {
public:
    KeyedRows(RecordFilters& filters, RowResolver& rows, const ado::Recordset& calls)
        : filters_(filters), rows_(rows), columns_(calls) {}

    Verdict Judge(const ado::Recordset& calls) {
        if (!filters_.Keeps(calls, columns_)) return Verdict::NoRow;
        return rows_.IsDropped(calls) ? Verdict::NotCounted : Verdict::Row;
    }
    const std::vector<std::string_view>& Cells(const ado::Recordset& calls) { return rows_.Resolve(calls); }

private:
    RecordFilters& filters_;
    RowResolver& rows_;
    const CallColumns columns_;
};

/// The rows of a custom report.
class ChosenRows {
public:
    explicit ChosenRows(CustomRows& rows) : rows_(rows) {}

    Verdict Judge(const ado::Recordset& calls) { return rows_.Keeps(calls) ? Verdict::Row : Verdict::NoRow; }
    const std::vector<std::string_view>& Cells(const ado::Recordset&) { return rows_.Cells(); }

private:
    CustomRows& rows_;
};

std::string_view CurrencyOf(const RunRules& rules, const Session& session) {
    return rules.fixedCurrency.empty() ? std::string_view(session.Currency) : rules.fixedCurrency;
}

}  // namespace

std::filesystem::path PageFile(const Application& application) {
    return application.tempFolder / kPageName;
}

std::filesystem::path CommaTextFile(const Application& application) {
    return application.tempFolder / kCommaTextName;
}

ReportRun::ReportRun(Application& application, ReportFlags& flags, RunProgress& progress)
    : application_(application), flags_(flags), progress_(progress) {}

RunOutcome ReportRun::Make(const RunDescription& description) {
    DeleteWorkingFiles(kPageFiles);
    if (description.rules.writesCovers) DeleteWorkingFiles(kCoverFiles);
    settings_ = SettingsOf(description, application_.settings);
    if (!description.custom) ReadKeys(description);
    Attempt([&] { OpenDatabase(application_.session); });
    const RunOutcome outcome = RefusalOf(description) ? RunOutcome::Refused : MakePage(description);
    CloseDatabase(application_.session);
    if (outcome == RunOutcome::Complete && description.rules.logsTheRun) {
        LogOnItsOwn(application_.session, application_.clock, "Report Run - " + description.reportName);
    }
    return outcome;
}

RunOutcome ReportRun::MakePage(const RunDescription& description) {
    site_ = ReadFirstSite(application_.session, settings_.numbers);
    return WritePage(description);
}

void ReportRun::DeleteWorkingFiles(std::span<const std::string_view> names) const {
    std::error_code ignored;
    for (const std::string_view name : names) {
        std::filesystem::remove(application_.tempFolder / name, ignored);
    }
}

void ReportRun::ReadKeys(const RunDescription& description) {
    const IniFile report(FindIgnoringCase(description.reportFile));
    flags_.Read(report);
    options_ = ReadReportOptions(report);
}

RunOutcome ReportRun::WritePage(const RunDescription& description) {
    const PageDescription pageDescription = DescribePage(description);
    Page page(PageFile(application_), pageDescription);
    page.WriteHead();
    if (description.rules.writesCovers) WriteCovers(pageDescription);
    if (description.rules.writesTitle && !options_.title.empty())
        page.WriteTitle(TitleLine(description.inputs));
    page.WriteColumnHeads(description.custom ? HeadsOf(*description.custom)
                                             : HeadsOf(flags_, settings_.numbers));

    ado::Recordset calls;
    Attempt([&] { application_.events.ServeDuring([&] { OpenCalls(description, calls); }); });
    const bool isEmpty = TestOrEnter([&] { return calls.RecordCount() == 0; });
    if (isEmpty && description.rules.empty == EmptyResult::Stop) return RunOutcome::NoData;
    page.WriteTotals(WriteRows(description, calls, page));
    page.WriteEnd(GraphText(description, calls));
    page.Close();
    return RunOutcome::Complete;
}

PageDescription ReportRun::DescribePage(const RunDescription& description) const {
    return {.shape = ShapeOf(description, settings_.coloured),
            .settings = settings_,
            .rules = description.rules,
            .reportName = description.reportName,
            .applicationFolder = application_.folder.string(),
            .docsLocation = application_.session.DocsLocation,
            .version = application_.version,
            .generated = application_.clock.Now(),
            .siteName = site_.name,
            .addressLines = site_.addressLines};
}

void ReportRun::WriteCovers(const PageDescription& page) const {
    const CoverSettings covers = LoadCoverSettings(application_.settings);
    const CoverDescription cover = {.settings = covers,
                                    .colours = settings_.colours,
                                    .reportName = page.reportName,
                                    .applicationFolder = page.applicationFolder,
                                    .version = page.version,
                                    .printed = page.generated};
    if (covers.cover) WriteCover(application_.tempFolder / kCoverName, cover);
    if (covers.backing) WriteBackPage(application_.tempFolder / kBackPageName, cover);
}

// The title names what the report was asked for; the site's entry stands in for a
// field that was left empty.
std::string ReportRun::TitleLine(const RunInputs& inputs) const {
    const bool ofAccount = options_.account && !options_.extension;
    const std::string& field = ofAccount ? inputs.account : inputs.extension;
    return options_.title + " " + (field.empty() ? inputs.site : field);
}

void ReportRun::OpenCalls(const RunDescription& description, ado::Recordset& calls) {
    const QueryInputs query = {.flags = flags_,
                               .options = options_,
                               .inputs = description.inputs,
                               .rules = description.rules.query,
                               .isMitel5000 = site_.isMitel5000};
    const std::string statement = BuildQuery(application_.session, query);
    calls.Open(statement, OpenConnection(application_.session));
}

// A set that the server refused has no rows to write.
PageTotals ReportRun::WriteRows(const RunDescription& description, ado::Recordset& calls, Page& page) {
    recordsWritten_ = 0;
    if (description.custom) {
        WriteChosenRows(*description.custom, calls, page);
        return {.records = recordsWritten_};
    }
    const std::string currency(CurrencyOf(description.rules, application_.session));
    const std::int32_t pence = calls.IsOpen() ? WriteKeyedRows(description, currency, calls, page) : 0;
    return {.records = recordsWritten_, .showsCost = flags_.Cost(), .cost = currency + TotalText(pence)};
}

std::int32_t ReportRun::WriteKeyedRows(const RunDescription& description, std::string_view currency,
                                       ado::Recordset& calls, Page& page) {
    Tariff tariff(application_.session);
    const RowContext context = {
        .session = application_.session,
        .events = application_.events,
        .flags = flags_,
        .settings = settings_,
        .site = site_,
        .tariff = tariff,
        .currency = currency,
        .dropsShortNumbers = CountsDialledNumbers(flags_, options_) && flags_[DataKey::DestNum]};
    RowResolver resolver(context, CallColumns(calls));
    RecordFilters filters(description, flags_.Hours(), settings_.timeOpen, settings_.timeClosed);
    const bool bounded = description.rules.honoursTop && options_.top != 0;
    WalkRecords(bounded ? options_.top : calls.RecordCount(), calls, KeyedRows(filters, resolver, calls),
                page);
    return resolver.TotalPence();
}

void ReportRun::WriteChosenRows(const CustomReport& report, ado::Recordset& calls, Page& page) {
    if (!calls.IsOpen()) return;
    CustomRows rows(application_.session, application_.events, report, calls);
    WalkRecords(calls.RecordCount(), calls, ChosenRows(rows), page);
}

// `bound` is the number of records looked at, kept or not, save those that a count of
// dialled numbers drops. Rounds past the last record would do nothing.
template <typename Rows>
void ReportRun::WalkRecords(std::int64_t bound, ado::Recordset& calls, Rows rows, Page& page) {
    const std::int64_t fetched = calls.RecordCount();
    std::int64_t record = 1;
    for (std::int64_t row = 0; row < fetched && record <= bound; ++row, ++record, calls.MoveNext()) {
        progress_.Record(record, bound);
        const Verdict verdict = rows.Judge(calls);
        if (verdict == Verdict::NoRow) continue;
        if (verdict == Verdict::NotCounted) {
            page.FlipShading();
            --record;
            continue;
        }
        page.WriteRow(rows.Cells(calls));
        ++recordsWritten_;
    }
}

// The chart takes up where the walk over the records left the set.
std::string ReportRun::GraphText(const RunDescription& description, ado::Recordset& calls) const {
    std::string graph;
    if (description.drawsGraph) Attempt([&] { graph = BuildBarGraph(calls, kGraphHeight, kBarWidth); });
    return graph;
}

}  // namespace tallix
