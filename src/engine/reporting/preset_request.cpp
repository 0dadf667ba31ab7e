#include "reporting/preset_request.h"

#include <fmt/format.h>

#include <string_view>

#include "compat/ini_file.h"
#include "database/database_scope.h"
#include "platform/paths.h"
#include "reporting/catalogue.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kMessageTitle = "Tallix Reports";
constexpr std::string_view kNoData =
    "The report does not contain any data.\nIf you have recently installed Tallix, please wait 24 hours "
    "before the Processor has run. Otherwise check that you have entered your filter options correctly.";

constexpr std::array<std::string_view, kInputs> kOptionKeys = {"Date", "Duration", "Extension", "Account",
                                                               "Site", "Group",    "Time"};

Message Exclamation(std::string_view text) {
    return {std::string(kMessageTitle), std::string(text), MessageIcon::Exclamation};
}

std::vector<std::string> ReadColumn(const DatabaseScope& database, std::string_view table,
                                    std::string_view name) {
    const ado::Rows rows = database.Query(fmt::format("SELECT * FROM {}", table));
    const ado::Column column = rows.Find(name);
    std::vector<std::string> values;
    for (const ado::Row row : rows) values.emplace_back(row.Text(column));
    return values;
}

std::vector<std::string> AfterAll(const std::vector<std::string>& values) {
    std::vector<std::string> list = {std::string(kAll)};
    list.insert(list.end(), values.begin(), values.end());
    return list;
}

std::optional<Message> RefusalOf(std::string_view field, const std::string& value) {
    if (IsNumeric(value)) return std::nullopt;
    return Exclamation(
        fmt::format("You have not entered a {}value for {}. This report requires this value to run!",
                    value.empty() ? "" : "numeric ", field));
}

}  // namespace

PresetChoices ReadPresetChoices(Application& application) {
    PresetChoices choices;
    choices.reports = ListReports(PresetReportsFolder(application.folder));
    const DatabaseScope database(application.session.database);
    std::vector<std::string> sites = ReadColumn(database, "tblsite", "ID");
    for (std::string& id : sites) id = fmt::format("{:0>3}", id);
    choices.sites = AfterAll(sites);
    choices.groups = AfterAll(ReadColumn(database, "tblgroupnames", "Name"));
    return choices;
}

EnabledInputs::EnabledInputs(const std::filesystem::path& reportFile) {
    const IniFile report(FindIgnoringCase(reportFile));
    for (std::size_t i = 0; i < kInputs; ++i) {
        enabled_[i] = EqualNoCase(report.Read("Options", kOptionKeys[i]), "True");
    }
}

std::optional<Message> RefusalOf(const PresetRun& run) {
    std::optional<Message> refusal;
    if (run.demandsExtension) refusal = RefusalOf("extension number", run.inputs.extension);
    if (!refusal && run.demandsAccount) refusal = RefusalOf("account code", run.inputs.account);
    return refusal;
}

Message NoDataMessage() {
    return Exclamation(kNoData);
}

}  // namespace tallix
