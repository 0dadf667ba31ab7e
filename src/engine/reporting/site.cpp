#include "reporting/site.h"

#include <fmt/format.h>

#include <array>

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kMitel5000 = "Mitel 5000";

constexpr std::array<std::string_view, 5> kAddressColumns = {"Addy1", "Addy2", "Addy3", "Addy4", "Postcode"};

void ReadColumns(ado::Row row, Site& site) {
    Attempt([&] { site.name = row.Text("Name"); });
    for (const std::string_view column : kAddressColumns) {
        Attempt([&] { site.addressLines.emplace_back(row.Text(column)); });
    }
    Attempt([&] { site.email = row.Text("Email"); });
    Attempt([&] { site.voicemail = row.Text("VM"); });
    Attempt([&] { site.areaCode = row.Text("Area"); });
    Attempt([&] { site.isMitel5000 = EqualNoCase(row.Text("SwitchMapping"), kMitel5000); });
}

void ReadAreaName(const DatabaseScope& database, NumberTable numbers, Site& site) {
    const ado::Rows areas = database.Query(fmt::format(
        "SELECT * FROM {} WHERE Code = {}", NumberTableName(numbers), database.Quoted(site.areaCode)));
    if (!areas.IsEmpty()) site.areaName = areas.First().Text("Provider");
}

}  // namespace

std::string_view NumberTableName(NumberTable numbers) {
    return numbers == NumberTable::Areas ? "tblareaproviders" : "tblcommproviders";
}

Site ReadFirstSite(const DatabaseScope& database, NumberTable numbers) {
    Site site;
    Attempt([&] {
        const ado::Rows sites = database.Query("SELECT * FROM tblsite");
        if (!sites.IsEmpty()) ReadColumns(sites.First(), site);
    });
    Attempt([&] { ReadAreaName(database, numbers, site); });
    return site;
}

}  // namespace tallix
