#include "reporting/query_builder.h"

#include <cstdint>
#include <span>
#include <string_view>

#include "database/recordset.h"
#include "failures/attempt.h"
#include "session/database.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kAllCalls = "SELECT * FROM tblphonedata";
constexpr std::string_view kCountOfNumbers = "SELECT DestNum, COUNT(DestNum) FROM tblphonedata";
constexpr std::string_view kOrder = "ORDER";
constexpr std::size_t kLengthOfWhere = 6;  ///< "WHERE "

// What a rule asks of the report and the run. A rule applies when all of it holds.
enum Condition : unsigned {
    kAlways = 0,
    kByExtension = 1 << 0,
    kByAccount = 1 << 1,
    kBySite = 1 << 2,
    kByGroup = 1 << 3,
    kShowsDestNum = 1 << 4,
    kShowsOrigNum = 1 << 5,
    kAllSites = 1 << 6,
    kAllGroups = 1 << 7,
    kStartsWithOrder = 1 << 8,
    kExtensionGiven = 1 << 9,
};

// The text that a rule appends to the base statement. Behind "%" stand: E the extension
// as a literal, e the same with one blank behind it (calls hold both forms), X the
// column of the extension, A account, S site, G the group clause, W the report's
// `Where`, R that without its first six characters.
struct Rule {
    unsigned needs;
    std::string_view text;
};

constexpr Rule kPresetPlain[] = {
    {kByExtension | kShowsDestNum, " WHERE %X = %E OR %X = %e"},
    {kByAccount, " WHERE Account = %A"},
    {kByExtension | kShowsOrigNum, " WHERE DestNum = %E"},
    {kBySite | kAllSites, " ORDER BY Date, Time, Site"},
    {kBySite, " WHERE Site = %S"},
    {kByGroup | kAllGroups, " "},
    {kByGroup, "%G "},
    {kAlways, ""},
};

constexpr Rule kPresetWhere[] = {
    {kByExtension | kStartsWithOrder, " WHERE (%X = %E OR %X = %e) %W"},
    {kByExtension, " %W AND (%X = %E OR %X = %e)"},
    {kBySite | kAllSites, " WHERE (%R) ORDER BY Date, Time, Site"},
    {kBySite, " WHERE Site = %S %W"},
    {kByAccount | kStartsWithOrder, " WHERE Account = %A %W"},
    {kByAccount, " %W AND Account = %A"},
    {kByGroup | kAllGroups, " %W"},
    {kByGroup, "%G %W"},
    {kAlways, " %W"},
};

constexpr Rule kUnattendedPlain[] = {
    {kByExtension | kShowsDestNum, " WHERE Extension = %E"},
    {kByAccount, " WHERE Account = %A"},
    {kByExtension | kShowsOrigNum, " WHERE DestNum = %E"},
    {kBySite | kAllSites, " ORDER BY Date, Time, Site"},
    {kBySite, " WHERE Site = %S"},
    {kAlways, ""},
};

constexpr Rule kUnattendedWhere[] = {
    {kByExtension, " %W AND Extension = %E"},
    {kBySite | kAllSites, " WHERE (%R) ORDER BY Date, Time, Site"},
    {kBySite, " WHERE (%R) AND Site = %S"},
    {kAlways, " %W"},
};

constexpr Rule kCustom[] = {
    {kExtensionGiven, " WHERE Extension = %E"},
    {kAlways, ""},
};

std::span<const Rule> RulesFor(const QueryInputs& query) {
    if (query.rules == QueryRules::Custom) return kCustom;
    const bool plain = query.options.where.empty();
    if (query.rules == QueryRules::Unattended) {
        return plain ? std::span<const Rule>(kUnattendedPlain) : std::span<const Rule>(kUnattendedWhere);
    }
    return plain ? std::span<const Rule>(kPresetPlain) : std::span<const Rule>(kPresetWhere);
}

unsigned When(bool holds, Condition condition) {
    return holds ? condition : kAlways;
}

unsigned ConditionsOf(const QueryInputs& query) {
    const ReportOptions& options = query.options;
    return When(options.extension, kByExtension) | When(options.account, kByAccount) |
           When(options.site, kBySite) | When(options.group, kByGroup) |
           When(query.flags[DataKey::DestNum], kShowsDestNum) |
           When(query.flags[DataKey::OrigNum], kShowsOrigNum) |
           When(!query.inputs.extension.empty(), kExtensionGiven) |
           When(EqualNoCase(query.inputs.site, kAll), kAllSites) |
           When(EqualNoCase(query.inputs.group, kAll), kAllGroups) |
           When(EqualNoCase(Left(options.where, kOrder.size()), kOrder), kStartsWithOrder);
}

std::string_view RuleText(const QueryInputs& query) {
    const unsigned conditions = ConditionsOf(query);
    for (const Rule& rule : RulesFor(query)) {
        if ((conditions & rule.needs) == rule.needs) return rule.text;
    }
    return {};
}

std::string GroupId(Session& session, const std::string& group) {
    ado::Recordset names;
    names.Open("SELECT * FROM tblgroupnames WHERE Name = " + Quoted(session, group), OpenConnection(session));
    return names.RecordCount() > 0 ? std::string(names.Text("ID")) : std::string();
}

std::string GroupMembers(Session& session, const std::string& groupId) {
    ado::Recordset map;
    map.Open("SELECT * FROM tblgroupmap WHERE GroupID = " + Quoted(session, groupId),
             OpenConnection(session));
    std::string members;
    for (std::int64_t i = 1; i <= map.RecordCount(); ++i, map.MoveNext()) {
        if (i > 1) members += " OR Extension=";
        members += map.Text("Extension");
    }
    return members;
}

// The values stand bare: a member that is no number makes a statement that fails.
std::string GroupClause(Session& session, const std::string& group) {
    std::string id;
    std::string members;
    Attempt([&] { id = GroupId(session, group); });
    Attempt([&] { members = GroupMembers(session, id); });
    return " WHERE (Extension=" + members + ")";
}

std::string PieceFor(char mark, Session& session, const QueryInputs& query) {
    const RunInputs& inputs = query.inputs;
    switch (mark) {
        case 'E':
            return Quoted(session, inputs.extension);
        case 'e':
            return Quoted(session, inputs.extension + " ");
        case 'X':
            return query.isMitel5000 ? "OrigNum" : "Extension";
        case 'A':
            return Quoted(session, inputs.account);
        case 'S':
            return Quoted(session, inputs.site);
        case 'G':
            return GroupClause(session, inputs.group);
        case 'W':
            return query.options.where;
        case 'R':
            return std::string(Mid(query.options.where, kLengthOfWhere + 1, std::string::npos));
        default:
            return {};
    }
}

std::string Expand(std::string_view text, Session& session, const QueryInputs& query) {
    std::string expanded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%') {
            expanded += PieceFor(text[++i], session, query);
        } else {
            expanded += text[i];
        }
    }
    return expanded;
}

}  // namespace

std::string BuildQuery(Session& session, const QueryInputs& query) {
    const bool custom = query.rules == QueryRules::Custom;
    const bool counts = !custom && CountsDialledNumbers(query.flags, query.options);
    std::string statement(counts ? kCountOfNumbers : kAllCalls);
    statement += Expand(RuleText(query), session, query);
    if (session.database.kind == DatabaseKind::SqlServer && !custom) return Replace(statement, "\"", "'");
    return statement;
}

}  // namespace tallix
