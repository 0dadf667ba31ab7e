#include "reporting/query_rules.h"

namespace tallix {

namespace {

constexpr QueryRule kPresetPlain[] = {
    {kByExtension | kShowsDestNum,
     " WHERE {extensionColumn} = {extension} OR {extensionColumn} = {extensionAndBlank}"},
    {kByAccount, " WHERE Account = {account}"},
    {kByExtension | kShowsOrigNum, " WHERE DestNum = {extension}"},
    {kBySite | kAllSites, " ORDER BY Date, Time, Site"},
    {kBySite, " WHERE Site = {site}"},
    {kByGroup | kAllGroups, " "},
    {kByGroup, " WHERE (Extension={groupMembers}) "},
    {kAlways, ""},
};

constexpr QueryRule kPresetWithWhere[] = {
    {kByExtension | kStartsWithOrder,
     " WHERE ({extensionColumn} = {extension} OR {extensionColumn} = {extensionAndBlank}) {where}"},
    {kByExtension,
     " {where} AND ({extensionColumn} = {extension} OR {extensionColumn} = {extensionAndBlank})"},
    {kBySite | kAllSites, " WHERE ({whereCondition}) ORDER BY Date, Time, Site"},
    {kBySite, " WHERE Site = {site} {where}"},
    {kByAccount | kStartsWithOrder, " WHERE Account = {account} {where}"},
    {kByAccount, " {where} AND Account = {account}"},
    {kByGroup | kAllGroups, " {where}"},
    {kByGroup, " WHERE (Extension={groupMembers}) {where}"},
    {kAlways, " {where}"},
};

constexpr QueryRule kUnattendedPlain[] = {
    {kByExtension | kShowsDestNum, " WHERE Extension = {extension}"},
    {kByAccount, " WHERE Account = {account}"},
    {kByExtension | kShowsOrigNum, " WHERE DestNum = {extension}"},
    {kBySite | kAllSites, " ORDER BY Date, Time, Site"},
    {kBySite, " WHERE Site = {site}"},
    {kAlways, ""},
};

constexpr QueryRule kUnattendedWithWhere[] = {
    {kByExtension, " {where} AND Extension = {extension}"},
    {kBySite | kAllSites, " WHERE ({whereCondition}) ORDER BY Date, Time, Site"},
    {kBySite, " WHERE ({whereCondition}) AND Site = {site}"},
    {kAlways, " {where}"},
};

}  // namespace

const QueryRules kPresetQuery = {kPresetPlain, kPresetWithWhere};
const QueryRules kUnattendedQuery = {kUnattendedPlain, kUnattendedWithWhere};

}  // namespace tallix
