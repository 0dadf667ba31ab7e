#include "reporting/query_builder.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

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

std::string GroupId(Session& session, const std::string& group) {
    ado::Recordset names;
    names.Open("SELECT * FROM tblgroupnames WHERE Name = " + Quoted(session, group), OpenConnection(session));
    return names.RecordCount() > 0 ? std::string(names.Text("ID")) : std::string();
}

std::string MembersOf(Session& session, const std::string& groupId) {
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

// The members go in without quotes: one that is not a number makes a statement that fails.
std::string GroupMembers(Session& session, const std::string& group) {
    std::string id;
    std::string members;
    Attempt([&] { id = GroupId(session, group); });
    Attempt([&] { members = MembersOf(session, id); });
    return members;
}

using TextOfPlaceholder = std::string (*)(Session& session, const QueryInputs& query);

struct Placeholder {
    std::string_view name;
    TextOfPlaceholder text;
};

constexpr Placeholder kPlaceholders[] = {
    {"extensionColumn",
     [](Session&, const QueryInputs& query) {
         return std::string(query.isMitel5000 ? "OrigNum" : "Extension");
     }},
    {"extension",
     [](Session& session, const QueryInputs& query) { return Quoted(session, query.inputs.extension); }},
    // Calls hold the extension with a blank after it as well.
    {"extensionAndBlank",
     [](Session& session, const QueryInputs& query) {
         return Quoted(session, query.inputs.extension + " ");
     }},
    {"account",
     [](Session& session, const QueryInputs& query) { return Quoted(session, query.inputs.account); }},
    {"site", [](Session& session, const QueryInputs& query) { return Quoted(session, query.inputs.site); }},
    {"groupMembers",
     [](Session& session, const QueryInputs& query) { return GroupMembers(session, query.inputs.group); }},
    {"where", [](Session&, const QueryInputs& query) { return query.options.where; }},
    {"whereCondition",
     [](Session&, const QueryInputs& query) {
         return std::string(Mid(query.options.where, kLengthOfWhere + 1, std::string::npos));
     }},
};

// The names in the rules are ours: each is in the table.
std::string TextOf(std::string_view name, Session& session, const QueryInputs& query) {
    const auto* placeholder = std::find_if(std::begin(kPlaceholders), std::end(kPlaceholders),
                                           [&](const Placeholder& each) { return each.name == name; });
    return placeholder->text(session, query);
}

std::string Expand(std::string_view text, Session& session, const QueryInputs& query) {
    std::string expanded;
    while (true) {
        const std::size_t open = text.find('{');
        expanded += text.substr(0, open);
        if (open == std::string_view::npos) return expanded;
        const std::size_t close = text.find('}', open);
        expanded += TextOf(text.substr(open + 1, close - open - 1), session, query);
        text.remove_prefix(close + 1);
    }
}

}  // namespace

std::string BuildQuery(Session& session, const QueryInputs& query) {
    std::string statement(CountsDialledNumbers(query.flags, query.options) ? kCountOfNumbers : kAllCalls);
    statement += Expand(RuleText(query), session, query);
    return session.database.kind == DatabaseKind::SqlServer ? Replace(statement, "\"", "'") : statement;
}

std::string BuildCustomQuery(const Session& session, std::string_view extension) {
    std::string statement(kAllCalls);
    if (!extension.empty()) statement += " WHERE Extension = " + Quoted(session, extension);
    return statement;
}

}  // namespace tallix
