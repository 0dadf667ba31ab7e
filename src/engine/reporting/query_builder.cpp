#include "reporting/query_builder.h"

#include <fmt/format.h>

#include <stdexcept>
#include <vector>

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kAllCalls = "SELECT * FROM tblphonedata";
constexpr std::string_view kCountOfNumbers = "SELECT DestNum, COUNT(DestNum) FROM tblphonedata";
constexpr std::string_view kOrder = "ORDER";
constexpr std::size_t kLengthOfWhere = 6;  ///< "WHERE "

unsigned When(bool holds, QueryCondition condition) {
    return holds ? condition : kAlways;
}

unsigned ConditionsOf(const QueryInputs& query) {
    const ReportOptions& options = query.options;
    return When(options.extension, kByExtension) | When(options.account, kByAccount) |
           When(options.site, kBySite) | When(options.group, kByGroup) |
           When(query.flags.Shows(kDestNumColumn), kShowsDestNum) |
           When(query.flags.Shows(kOrigNumColumn), kShowsOrigNum) |
           When(EqualNoCase(query.inputs.site, kAll), kAllSites) |
           When(EqualNoCase(query.inputs.group, kAll), kAllGroups) |
           When(EqualNoCase(Left(options.where, kOrder.size()), kOrder), kStartsWithOrder);
}

std::string_view RuleText(const QueryInputs& query) {
    const unsigned conditions = ConditionsOf(query);
    for (const QueryRule& rule : query.options.where.empty() ? query.rules.plain : query.rules.withWhere) {
        if ((conditions & rule.needs) == rule.needs) return rule.text;
    }
    return {};
}

std::string GroupId(const DatabaseScope& database, const std::string& group) {
    const ado::Rows names =
        database.Query("SELECT * FROM tblgroupnames WHERE Name = " + database.Quoted(group));
    return names.IsEmpty() ? std::string() : std::string(names.First().Text("ID"));
}

std::string MembersOf(const DatabaseScope& database, const std::string& groupId) {
    const ado::Rows map =
        database.Query("SELECT * FROM tblgroupmap WHERE GroupID = " + database.Quoted(groupId));
    const ado::Column extension = map.Find("Extension");
    std::vector<std::string_view> members;
    for (const ado::Row member : map) members.push_back(member.Text(extension));
    return fmt::format("{}", fmt::join(members, " OR Extension="));
}

// The members go in without quotes: one that is not a number makes a statement that fails.
std::string GroupMembers(const DatabaseScope& database, const std::string& group) {
    std::string id;
    std::string members;
    Attempt([&] { id = GroupId(database, group); });
    Attempt([&] { members = MembersOf(database, id); });
    return members;
}

/// What placeholders take their texts from.
struct Source {
    const DatabaseScope& database;
    const QueryInputs& query;

    const RunInputs& Inputs() const { return query.inputs; }
    std::string Quoted(const std::string& value) const { return database.Quoted(value); }
};

struct Placeholder {
    std::string_view name;
    std::string (*text)(const Source& source);
};

std::string ExtensionColumn(const Source& source) {
    return source.query.isMitel5000 ? "OrigNum" : "Extension";
}

// Without "WHERE ", whatever the first characters are.
std::string WhereCondition(const Source& source) {
    return std::string(Mid(source.query.options.where, kLengthOfWhere + 1, std::string::npos));
}

// Calls hold an extension with a blank after it as well.
constexpr Placeholder kPlaceholders[] = {
    {"extensionColumn", ExtensionColumn},
    {"extension", [](const Source& source) { return source.Quoted(source.Inputs().extension); }},
    {"extensionAndBlank",
     [](const Source& source) { return source.Quoted(source.Inputs().extension + " "); }},
    {"account", [](const Source& source) { return source.Quoted(source.Inputs().account); }},
    {"site", [](const Source& source) { return source.Quoted(source.Inputs().site); }},
    {"groupMembers",
     [](const Source& source) { return GroupMembers(source.database, source.Inputs().group); }},
    {"where", [](const Source& source) { return source.query.options.where; }},
    {"whereCondition", WhereCondition},
};

std::string TextOf(std::string_view name, const Source& source) {
    for (const Placeholder& placeholder : kPlaceholders) {
        if (placeholder.name == name) return placeholder.text(source);
    }
    throw std::logic_error("A rule has the unknown placeholder " + std::string(name));
}

std::string Expand(std::string_view text, const Source& source) {
    std::string expanded;
    while (true) {
        const std::size_t open = text.find('{');
        expanded += text.substr(0, open);
        if (open == std::string_view::npos) return expanded;
        const std::size_t close = text.find('}', open);
        expanded += TextOf(text.substr(open + 1, close - open - 1), source);
        text.remove_prefix(close + 1);
    }
}

}  // namespace

std::string BuildQuery(const DatabaseScope& database, const QueryInputs& query) {
    std::string statement(CountsDialledNumbers(query.flags, query.options) ? kCountOfNumbers : kAllCalls);
    statement += Expand(RuleText(query), {database, query});
    return database.Kind() == DatabaseKind::SqlServer ? Replace(statement, "\"", "'") : statement;
}

std::string BuildCustomQuery(const DatabaseScope& database, std::string_view extension) {
    std::string statement(kAllCalls);
    if (!extension.empty()) statement += " WHERE Extension = " + database.Quoted(extension);
    return statement;
}

}  // namespace tallix
