#include "administration/mappings.h"

#include <algorithm>

#include "database/database_scope.h"
#include "failures/attempt.h"
#include "session/access_log.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kNameColumn = "Mapping_Name";
constexpr std::string_view kAllMappings = "select * from tblphonemapping";
constexpr std::string_view kOneMapping = "select * from tblphonemapping where Mapping_Name = ";
constexpr std::string_view kSiteLines = "select * from tblrawdata where SiteID = ";

constexpr char kIncomplete[] =
    "You have not enetered all values to be mapped. This will result in errors with your data reports.";
constexpr char kNoSite[] =
    "Please select a Site to collect from. If you are using the Listener only, select Site 001";
constexpr char kNoLine[] = "NO DATA AVAILABLE!";

std::string StartColumn(const MappingItem& item) {
    return std::string(item.column) + "ST";
}

std::string FinishColumn(const MappingItem& item) {
    return std::string(item.column) + "FN";
}

ado::Recordset Find(const DatabaseScope& database, std::string_view name) {
    return database.Edit(std::string(kOneMapping) + database.Quoted(name));
}

/// Whether the current row is the mapping of that name. A name may hold the delimiter of
/// literals and so find rows of other names.
bool Holds(const ado::Recordset& mappings, std::string_view name) {
    return mappings.RecordCount() > 0 && EqualNoCase(mappings.Text(kNameColumn), name);
}

Mapping ReadRow(const ado::Recordset& row) {
    Mapping mapping;
    Attempt([&] { mapping.name = row.Text(kNameColumn); });
    for (std::size_t i = 0; i < kMappingItems.size(); ++i) {
        const MappingItem& item = kMappingItems.at(i);
        Attempt([&] { mapping.items.at(i).start = row.Text(StartColumn(item)); });
        Attempt([&] { mapping.items.at(i).finish = row.Text(FinishColumn(item)); });
    }
    return mapping;
}

void WriteRow(ado::Recordset& row, const Mapping& mapping) {
    row.Collect(kNameColumn, mapping.name);
    for (std::size_t i = 0; i < kMappingItems.size(); ++i) {
        const MappingItem& item = kMappingItems.at(i);
        Attempt([&] { row.Collect(StartColumn(item), mapping.items.at(i).start); });
        Attempt([&] { row.Collect(FinishColumn(item), mapping.items.at(i).finish); });
    }
    row.Update();
}

bool IsComplete(const Mapping& mapping) {
    return std::none_of(mapping.items.begin(), mapping.items.end(),
                        [](const Positions& positions) { return positions.start.empty(); });
}

}  // namespace

std::optional<Positions> MapToField(const MappingItem& item, int start, int length) {
    const int first = start + 1;
    const int last = start + length;
    if (last - first > item.limit) return std::nullopt;
    return Positions{std::to_string(first), std::to_string(last)};
}

std::vector<std::string> ReadMappingNames(const Session& session) {
    std::vector<std::string> names;
    Attempt([&] {
        const ado::Rows mappings = DatabaseScope(session.database).Query(kAllMappings);
        for (const ado::Row mapping : mappings) names.emplace_back(mapping.Text(kNameColumn));
    });
    return names;
}

std::optional<Mapping> ReadMapping(const Session& session, const std::string& name) {
    std::optional<Mapping> mapping;
    Attempt([&] {
        const DatabaseScope database(session.database);
        const ado::Recordset found = Find(database, name);
        if (Holds(found, name)) mapping = ReadRow(found);
    });
    return mapping;
}

bool SaveMapping(const Application& application, const Mapping& mapping) {
    if (mapping.name.empty()) return false;
    if (!IsComplete(mapping)) {
        application.prompts.Show({"Value Mappings", kIncomplete, MessageIcon::Critical});
        return false;
    }
    const Session& session = application.session;
    const DatabaseScope database = DatabaseScope::TryOpen(session.database);
    Attempt([&] {
        ado::Recordset found = Find(database, mapping.name);
        if (!Holds(found, mapping.name)) found.AddNew();
        WriteRow(found, mapping);
    });
    Attempt([&] { WriteLog(database, session, application.clock, "Saved Custom Mappings"); });
    return true;
}

void DeleteMapping(const Session& session, const std::string& name) {
    Attempt([&] {
        const DatabaseScope database(session.database);
        ado::Recordset found = Find(database, name);
        if (Holds(found, name)) found.Delete();
    });
}

std::optional<std::string> SampleLines::First(const std::string& site) {
    if (site.empty()) {
        application_.prompts.Show({"Tallix Reports", kNoSite, MessageIcon::Information});
        return std::nullopt;
    }
    site_ = site;
    place_ = 0;
    return Read();
}

std::optional<std::string> SampleLines::Step(const std::string& site, Direction direction) {
    if (site.empty() || site != site_) return First(site);
    place_ += direction == Direction::Forward ? 1 : -1;
    return Read();
}

std::string SampleLines::Read() {
    std::string line = kNoLine;
    Attempt([&] {
        const DatabaseScope database(application_.session.database);
        const ado::Rows lines = database.Query(std::string(kSiteLines) + database.Quoted(site_));
        place_ = std::clamp<std::int64_t>(place_, -1, lines.Count());
        if (place_ >= 0 && place_ < lines.Count()) line = lines[place_].Text("Data");
    });
    return line;
}

}  // namespace tallix
