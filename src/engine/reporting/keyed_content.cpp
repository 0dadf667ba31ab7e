#include "reporting/keyed_content.h"

#include "compat/ini_file.h"
#include "costing/cost_text.h"
#include "costing/tariff.h"
#include "database/database_scope.h"
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

constexpr GraphSize kGraphSize = {.height = 200, .barWidth = 6};

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
    Verdict Judge(ado::Row call) {
        if (!filters.Keeps(call)) return Verdict::NoRow;
        return resolver.IsDropped(call) ? Verdict::NotCounted : Verdict::Row;
    }
    const std::vector<std::string_view>& Cells(ado::Row call) { return resolver.Resolve(call); }

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

std::string KeyedContent::Statement(const DatabaseScope& database, const Site& site) const {
    return BuildQuery(database, {.flags = flags_,
                                 .options = options_,
                                 .inputs = inputs_,
                                 .rules = rules_.query,
                                 .isMitel5000 = site.isMitel5000});
}

ReportContent::Written KeyedContent::WriteRows(const DatabaseScope& database, const Site& site,
                                               const ado::Rows& calls, PageWriter& page) const {
    const std::string currency(rules_.fixedCurrency.empty() ? std::string_view(application_.session.Currency)
                                                            : rules_.fixedCurrency);
    Tariff tariff(database);
    const bool dropsShort = CountsDialledNumbers(flags_, options_) && flags_.Shows(kDestNumColumn);
    const RowContext context = {.database = database,
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
    const auto [written, next] =
        WalkRecords(bounded ? options_.top : calls.Count(), progress_, calls, rows, page);
    return {.totals = {.records = written,
                       .showsCost = flags_.Shows(kCostColumn),
                       .cost = currency + TotalText(rows.resolver.TotalPence())},
            .next = next};
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

std::string PresetContent::Graph(const ado::Rows& calls, std::int64_t next) const {
    std::string graph;
    if (run_.drawsGraph) Attempt([&] { graph = BuildBarGraph(calls, next, kGraphSize); });
    return graph;
}

UnattendedContent::UnattendedContent(Application& application, RunProgress& progress,
                                     const UnattendedRun& run)
    : KeyedContent(application, progress, kUnattendedRules, {run.flags, run.reportFile, run.inputs}) {}

}  // namespace tallix
