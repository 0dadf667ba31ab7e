#include "reporting/keyed_content.h"

#include "compat/ini_file.h"
#include "costing/cost_text.h"
#include "costing/tariff.h"
#include "failures/attempt.h"
#include "platform/paths.h"
#include "reporting/bar_graph.h"
#include "reporting/column_choice.h"
#include "reporting/preset_request.h"
#include "reporting/query_builder.h"
#include "reporting/record_walk.h"
#include "reporting/row_resolution.h"

namespace tallix {

namespace {

// The chart's size in pixels.
constexpr int kGraphHeight = 200;
constexpr int kBarWidth = 6;

constexpr KeyedRules kPresetRules = {
    .run = {.empty = EmptyResult::Stop, .writesCovers = true, .logsTheRun = true},
    .query = kPresetQuery,
    .filters = {.time = TimeRule::BothBounds, .blankNumbers = BlankNumbers::Dropped},
    .honoursTop = true,
    .writesTitle = true,
};

constexpr KeyedRules kUnattendedRules = {
    .run = {.empty = EmptyResult::CloseThePage,
            .writesCovers = false,
            .logsTheRun = false,
            .dateLine = {.opening = "Generated On: ", .precision = TimePrecision::Seconds}},
    .query = kUnattendedQuery,
    .filters = {.time = TimeRule::Schedule, .blankNumbers = BlankNumbers::Kept},
    .honoursTop = false,
    .writesTitle = false,
    .fixedCurrency = "£",
};

struct KeyedRows {
    Verdict Judge(const ado::Recordset& calls) {
        if (!filters.Keeps(calls)) return Verdict::NoRow;
        return resolver.IsDropped(calls) ? Verdict::NotCounted : Verdict::Row;
    }
    const std::vector<std::string_view>& Cells(const ado::Recordset& calls) {
        return resolver.Resolve(calls);
    }

    RecordFilters filters;
    RowResolver resolver;
};

}  // namespace

KeyedContent::KeyedContent(Application& application, RunProgress& progress, const KeyedRules& rules,
                           const Source& source)
    : application_(application),
      progress_(progress),
      rules_(rules),
      flags_(source.flags),
      inputs_(source.inputs),
      settings_(ReadReportSettings(application.settings)) {
    const IniFile report(FindIgnoringCase(source.file));
    flags_.Read(report);
    options_ = ReadReportOptions(report);
}

// The title names what the report was asked for; the site's entry takes the place of a
// field that was left empty.
std::string KeyedContent::Title() const {
    if (!rules_.writesTitle || options_.title.empty()) return {};
    const bool ofAccount = options_.account && !options_.extension;
    const std::string& field = ofAccount ? inputs_.account : inputs_.extension;
    return options_.title + " " + (field.empty() ? inputs_.site : field);
}

std::vector<std::string_view> KeyedContent::Heads() const {
    return HeadsOf(flags_, settings_.numbers);
}

std::string KeyedContent::Statement(const Site& site) const {
    return BuildQuery(application_.session, {.flags = flags_,
                                             .options = options_,
                                             .inputs = inputs_,
                                             .rules = rules_.query,
                                             .isMitel5000 = site.isMitel5000});
}

PageTotals KeyedContent::WriteRows(const Site& site, ado::Recordset& calls, PageWriter& page) const {
    const std::string currency(rules_.fixedCurrency.empty() ? std::string_view(application_.session.Currency)
                                                            : rules_.fixedCurrency);
    PageTotals totals = {.showsCost = flags_.Shows(kCostColumn)};
    std::int32_t pence = 0;
    if (calls.IsOpen()) pence = WriteCountedRows(site, currency, calls, page, totals.records);
    totals.cost = currency + TotalText(pence);
    return totals;
}

// Returns the sum of the costs in pence.
std::int32_t KeyedContent::WriteCountedRows(const Site& site, std::string_view currency,
                                            ado::Recordset& calls, PageWriter& page,
                                            std::int32_t& written) const {
    Tariff tariff(application_.session);
    const bool dropsShort = CountsDialledNumbers(flags_, options_) && flags_.Shows(kDestNumColumn);
    const RowContext context = {.session = application_.session,
                                .events = application_.events,
                                .flags = flags_,
                                .settings = settings_,
                                .site = site,
                                .tariff = tariff,
                                .currency = currency,
                                .dropsShortNumbers = dropsShort};
    std::optional<OfficeHours> hours;
    if (flags_.Hours()) hours = {settings_.timeOpen, settings_.timeClosed};
    KeyedRows rows = {RecordFilters(calls, rules_.filters, inputs_, hours), RowResolver(context, calls)};
    const bool bounded = rules_.honoursTop && options_.top != 0;
    written = WalkRecords(bounded ? options_.top : calls.RecordCount(), progress_, calls, rows, page);
    return rows.resolver.TotalPence();
}

PresetContent::PresetContent(Application& application, RunProgress& progress, const PresetRun& run)
    : KeyedContent(application, progress, kPresetRules, {run.flags, run.reportFile, run.inputs}), run_(run) {}

PageShape PresetContent::Shape() const {
    if (run_.output == PageOutput::CommaText) return PageShape::CommaText;
    return Settings().coloured ? PageShape::Coloured : PageShape::Plain;
}

std::optional<Message> PresetContent::Refusal() const {
    return RefusalOf(run_);
}

// The chart begins after the last record that the rows looked at.
std::string PresetContent::Graph(ado::Recordset& calls) const {
    std::string graph;
    if (run_.drawsGraph) Attempt([&] { graph = BuildBarGraph(calls, kGraphHeight, kBarWidth); });
    return graph;
}

UnattendedContent::UnattendedContent(Application& application, RunProgress& progress,
                                     const UnattendedRun& run)
    : KeyedContent(application, progress, kUnattendedRules, {run.flags, run.reportFile, run.inputs}) {}

}  // namespace tallix
