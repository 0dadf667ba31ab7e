#include "administration/sites.h"

#include <algorithm>
#include <span>

#include "compat/service_script.h"
#include "database/database_scope.h"
#include "failures/attempt.h"
#include "platform/paths.h"
#include "session/access_log.h"
#include "text/ip_address.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kAllSites = "select * from tblsite";
constexpr std::string_view kCustomCode = "C";

struct Field {
    std::string_view column;
    std::string SiteRecord::*value;
};

constexpr Field kFields[] = {
    {"Name", &SiteRecord::name},
    {"Email", &SiteRecord::email},
    {"Addy1", &SiteRecord::address1},
    {"Addy2", &SiteRecord::address2},
    {"Addy3", &SiteRecord::address3},
    {"Addy4", &SiteRecord::address4},
    {"Postcode", &SiteRecord::postcode},
    {"Area", &SiteRecord::area},
    {"VM", &SiteRecord::voicemail},
    {"SwitchIP", &SiteRecord::switchIp},
    {"SwitchPort", &SiteRecord::switchPort},
    {"SwitchMapping", &SiteRecord::switchMapping},
    {"SystemCode", &SiteRecord::systemCode},
    {"3PTDatabase", &SiteRecord::thirdPartyDatabase},
    {"3PTUser", &SiteRecord::thirdPartyUser},
    {"3PTPass", &SiteRecord::thirdPartyPassword},
    {"3PTName", &SiteRecord::thirdPartyName},
};

constexpr char kTooManySites[] =
    "Tallix only supports a maximum of 999 remote PBX units. If you wish to add more you will need to create "
    "a new Tallix server. This site WILL NOT be saved!";
constexpr char kWrongAddress[] = "The PBX IP address you have entered is invalid!";
constexpr char kNoAddress[] =
    "You have not entered an IP address for collection, Comm collection will only be available";
constexpr char kNoPort[] =
    "You have not entered a port for collection, Comm collection will only be available";

constexpr char kApplyNow[] =
    "Do you want these new settings to take affect now?\n\n"
    "WARNING! - If you answer yes now then the Collector Service will restart. If your telephone system is "
    "not set to cache Tallix data whilst there is no connection then this may result in lost data. Do you "
    "wish to continue?";
constexpr char kDiscard[] =
    "Any changes that you have made will be discarded. Are you sure you want to exit?";

constexpr const char* kServiceScripts[] = {"Service_Off.bat", "Service_On.bat"};

std::string_view CodeOf(std::span<const NamedCode> choices, std::string_view name, std::string_view other) {
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [&](const NamedCode& choice) { return choice.name == name; });
    return found == choices.end() ? other : found->code;
}

bool IsConfirmed(Prompts& prompts, Message question) {
    question.buttons = MessageButtons::YesNo;
    return prompts.Show(question) == Answer::Yes;
}

SiteRecord ReadSite(const ado::Row& row) {
    SiteRecord site;
    Attempt([&] { site.id = row.Text("ID"); });
    for (const Field& field : kFields) Attempt([&] { site.*field.value = row.Text(field.column); });
    return site;
}

void Store(ado::Recordset& sites, const SiteRecord& site) {
    for (const Field& field : kFields) Attempt([&] { sites.Collect(field.column, site.*field.value); });
    Attempt([&] { sites.Update(); });
}

}  // namespace

std::string_view SystemCode(std::string_view mapping) {
    return CodeOf(kBuiltInMappings, mapping, kCustomCode);
}

std::string_view ThirdPartyCode(std::string_view system) {
    return CodeOf(kThirdPartySystems, system, kThirdPartySystems.front().code);
}

std::string_view ThirdPartySystem(std::string_view code) {
    for (const NamedCode& system : kThirdPartySystems) {
        if (system.code == code) return system.name;
    }
    return kThirdPartySystems.front().name;
}

std::vector<SiteRecord> ReadSites(const Session& session) {
    std::vector<SiteRecord> all;
    Attempt([&] {
        const ado::Rows sites = DatabaseScope(session.database).Query(kAllSites);
        for (const ado::Row site : sites) all.push_back(ReadSite(site));
    });
    return all;
}

std::int64_t CountSites(const Session& session) {
    return DatabaseScope(session.database).Query(kAllSites).Count();
}

bool MaySaveSite(Prompts& prompts, const SiteRecord& site, SiteEntry entry, std::size_t sites) {
    if (entry == SiteEntry::Added && sites == kMostSites) {
        prompts.Show({"Tallix", kTooManySites, MessageIcon::Exclamation});
        return false;
    }
    if (site.switchIp.empty()) {
        prompts.Show({"Tallix", kNoAddress, MessageIcon::Information});
    } else if (!IsIpAddress(site.switchIp, EmptyPart::Refused)) {
        prompts.Show({"IP Error", kWrongAddress, MessageIcon::Exclamation});
        return false;
    }
    if (site.switchPort.empty()) prompts.Show({"Tallix", kNoPort, MessageIcon::Information});
    return true;
}

void AddSite(const Session& session, const SiteRecord& site, std::size_t sites) {
    Attempt([&] {
        const DatabaseScope database(session.database);
        ado::Recordset table = database.Edit(kAllSites);
        table.AddNew();
        table.Collect("ID", std::to_string(sites + 1));
        Store(table, site);
    });
}

void UpdateSite(const Session& session, const SiteRecord& site) {
    Attempt([&] {
        const DatabaseScope database(session.database);
        ado::Recordset table =
            database.Edit(std::string(kAllSites) + " where ID = " + database.Quoted(site.id));
        if (table.RecordCount() > 0 && table.Text("ID") == site.id) Store(table, site);
    });
}

void DeleteSite(const Application& application, const SiteRecord& site) {
    const std::string question = "Are you sure you wish to delete site " + site.name + "?";
    if (!IsConfirmed(application.prompts, {"Delete Site?", question, MessageIcon::Question})) return;
    // Any other text would be a name or a condition in the statement.
    if (!IsNumeric(site.id)) return;
    Attempt([&] {
        DatabaseScope(application.session.database).Execute("DELETE FROM tblSite WHERE ID = " + site.id);
    });
}

bool WantsSitesAppliedNow(Prompts& prompts) {
    return IsConfirmed(prompts, {"Apply Now?", kApplyNow, MessageIcon::Exclamation});
}

void RestartCollector(const Application& application) {
    const std::filesystem::path parent = application.folder.parent_path();
    for (const char* name : kServiceScripts) {
        RunServiceScript(FindIgnoringCase(parent / "Processor" / name), parent, kServiceScriptLimit,
                         [&application] { application.events.Serve(); });
    }
}

void ReportSitesSaved(const Application& application) {
    application.prompts.Show({"Save Site Settings", "Site Settings saved!", MessageIcon::Information});
    LogOnItsOwn(application.session, application.clock, "Site Settings Saved");
}

bool WantsToLeaveSites(Prompts& prompts) {
    return IsConfirmed(prompts, {"Settings Changed", kDiscard, MessageIcon::Question});
}

}  // namespace tallix
