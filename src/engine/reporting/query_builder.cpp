#include "reporting/query_builder.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
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

using TextOfPlaceholder = std::string (*)(const DatabaseScope& database, const QueryInputs& query);

struct Placeholder {
    std::string_view name;
    TextOfPlaceholder text;
};

constexpr Placeholder kPlaceholders[] = {
    {"extensionColumn",
     [](const DatabaseScope&, const QueryInputs& query) {
         return std::string(query.isMitel5000 ? "OrigNum" : "Extension");
     }},
    {"extension", [](const DatabaseScope& database,
                     const QueryInputs& query) { return database.Quoted(query.inputs.extension); }},
    // Calls hold the extension with a blank after it as well.
    {"extensionAndBlank",
     [](const DatabaseScope& database, const QueryInputs& query) {
         return database.Quoted(query.inputs.extension + " ");
     }},
    {"account", [](const DatabaseScope& database,
                   const QueryInputs& query) { return database.Quoted(query.inputs.account); }},
    {"site", [](const DatabaseScope& database,
                const QueryInputs& query) { return database.Quoted(query.inputs.site); }},
    {"groupMembers", [](const DatabaseScope& database,
                        const QueryInputs& query) { return GroupMembers(database, query.inputs.group); }},
    {"where", [](const DatabaseScope&, const QueryInputs& query) { return query.options.where; }},
    {"whereCondition",
     [](const DatabaseScope&, const QueryInputs& query) {
         return std::string(Mid(query.options.where, kLengthOfWhere + 1, std::string::npos));
     }},
};

// The names in the rules are ours: each is in the table.
std::string TextOf(std::string_view name, const DatabaseScope& database, const QueryInputs& query) {
    const auto* placeholder = std::find_if(std::begin(kPlaceholders), std::end(kPlaceholders),
                                           [&](const Placeholder& each) { return each.name == name; });
    return placeholder->text(database, query);
}

std::string Expand(std::string_view text, const DatabaseScope& database, const QueryInputs& query) {
    std::string expanded;
    while (true) {
        const std::size_t open = text.find('{');
        expanded += text.substr(0, open);
        if (open == std::string_view::npos) return expanded;
        const std::size_t close = text.find('}', open);
        expanded += TextOf(text.substr(open + 1, close - open - 1), database, query);
        text.remove_prefix(close + 1);
    }
}

}  // namespace

std::string BuildQuery(const DatabaseScope& database, const QueryInputs& query) {
    std::string statement(CountsDialledNumbers(query.flags, query.options) ? kCountOfNumbers : kAllCalls);
    statement += Expand(RuleText(query), database, query);
    return database.Kind() == DatabaseKind::SqlServer ? Replace(statement, "\"", "'") : statement;
}

std::string BuildCustomQuery(const DatabaseScope& database, std::string_view extension) {
    std::string statement(kAllCalls);
    if (!extension.empty()) statement += " WHERE Extension = " + database.Quoted(extension);
    return statement;
}

}  // namespace tallix
