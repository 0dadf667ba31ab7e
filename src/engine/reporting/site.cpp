#include "reporting/site.h"

#include <array>

#include "database/recordset.h"
#include "failures/attempt.h"
#include "session/database.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kMitel5000 = "Mitel 5000";

constexpr std::array<std::string_view, 5> kAddressColumns = {"Addy1", "Addy2", "Addy3", "Addy4", "Postcode"};

void ReadColumns(const ado::Recordset& sites, Site& site) {
    Attempt([&] { site.name = sites.Text("Name"); });
    for (const std::string_view column : kAddressColumns) {
        Attempt([&] { site.addressLines.emplace_back(sites.Text(column)); });
    }
    Attempt([&] { site.email = sites.Text("Email"); });
    Attempt([&] { site.voicemail = sites.Text("VM"); });
    Attempt([&] { site.areaCode = sites.Text("Area"); });
    Attempt([&] { site.isMitel5000 = EqualNoCase(sites.Text("SwitchMapping"), kMitel5000); });
}

void ReadAreaName(Session& session, NumberTable numbers, Site& site) {
    ado::Recordset areas;
    const std::string statement = "SELECT * FROM " + std::string(NumberTableName(numbers)) +
                                  " WHERE Code = " + Quoted(session, site.areaCode);
    areas.Open(statement, OpenConnection(session));
    if (areas.RecordCount() > 0) site.areaName = areas.Text("Provider");
}

}  // namespace

std::string_view NumberTableName(NumberTable numbers) {
    return numbers == NumberTable::Areas ? "tblareaproviders" : "tblcommproviders";
}

Site ReadFirstSite(Session& session, NumberTable numbers) {
    Site site;
    Attempt([&] {
        ado::Recordset sites;
        sites.Open("SELECT * FROM tblsite", OpenConnection(session));
        if (sites.RecordCount() > 0) ReadColumns(sites, site);
    });
    Attempt([&] { ReadAreaName(session, numbers, site); });
    return site;
}

}  // namespace tallix
