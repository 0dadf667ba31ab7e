// What the statement of a report appends to its opening: lists of rules, of which the
// first one whose conditions hold applies.
#pragma once

#include <span>
#include <string_view>

namespace tallix {

/// What a rule asks of the report and the run, as bits of one number.
enum QueryCondition : unsigned {
    kAlways = 0,
    kByExtension = 1 << 0,
    kByAccount = 1 << 1,
    kBySite = 1 << 2,
    kByGroup = 1 << 3,
    kShowsDestNum = 1 << 4,
    kShowsOrigNum = 1 << 5,
    kAllSites = 1 << 6,
    kAllGroups = 1 << 7,
    kStartsWithOrder = 1 << 8,  ///< the report's `Where` begins with ORDER
};

struct QueryRule {
    unsigned needs;         ///< all of these conditions
    std::string_view text;  ///< with placeholders (reporting/query_builder.cpp)
};

struct QueryRules {
    std::span<const QueryRule> plain;      ///< for reports without a `Where`
    std::span<const QueryRule> withWhere;  ///< for reports with one
};

extern const QueryRules kPresetQuery;
extern const QueryRules kUnattendedQuery;

}  // namespace tallix
