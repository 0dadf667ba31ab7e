// The sites: one row of tblsite for each remote telephone system. A site gives the
// reports their address block, the mail its recipient, and the services their connection
// and line layout. The table's first row is the default site.
//
// Everything here opens the database for itself, closes it, and works in
// continue-on-error mode: what the server refuses is passed over without a word.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "session/application.h"

namespace tallix {

/// The most sites that a server takes.
inline constexpr std::size_t kMostSites = 999;

/// A row of tblsite.
struct SiteRecord {
    std::string id{};
    std::string name{};
    std::string email{};
    std::string address1{};
    std::string address2{};
    std::string address3{};
    std::string address4{};
    std::string postcode{};
    std::string area{};
    std::string voicemail{};
    std::string switchIp{};
    std::string switchPort{};
    std::string switchMapping{};  ///< a built-in name or one of a custom mapping
    std::string systemCode{};
    std::string thirdPartyDatabase{};  ///< code of the outside system that the site is read from
    std::string thirdPartyUser{};
    std::string thirdPartyPassword{};  ///< as typed
    std::string thirdPartyName{};
};

/// A choice on the screen and what is stored for it.
struct NamedCode {
    std::string_view name;
    std::string_view code;
};

/// The layouts that the services know by themselves, and the outside systems.
inline constexpr std::array<NamedCode, 4> kBuiltInMappings{
    {{"Mitel 3300", "1"}, {"Samsung OfficeServ 7200", "2"}, {"Avaya V7", "3"}, {"Mitel 5000", "4"}}};
inline constexpr std::array<NamedCode, 3> kThirdPartySystems{
    {{"None", "0"}, {"Asterisk", "1"}, {"FreePBX", "2"}}};

/// What is stored for a layout: "C" for a custom one.
std::string_view SystemCode(std::string_view mapping);

/// What is stored for an outside system; none for an unknown one. ThirdPartySystem is the
/// way back.
std::string_view ThirdPartyCode(std::string_view system);
std::string_view ThirdPartySystem(std::string_view code);

/// All sites in the table's own order.
std::vector<SiteRecord> ReadSites(Session& session);

enum class SiteEntry { Added, Edited };

/// Says what is amiss with a site that is to be saved. Returns whether the save goes on:
/// without an address or a port it does, with a wrong address or too many sites it does not.
bool MaySaveSite(Prompts& prompts, const SiteRecord& site, SiteEntry entry, std::size_t sites);

/// Adds a site with the number behind that of `sites`. A number that is taken, as it can be
/// once a site was deleted, is refused by the table's key.
void AddSite(Session& session, const SiteRecord& site, std::size_t sites);

/// Stores all but the number over the site of that number.
void UpdateSite(Session& session, const SiteRecord& site);

/// Asks, then deletes the site; the numbers of the others stay.
void DeleteSite(Application& application, const SiteRecord& site);

/// Asks whether the Collector takes the sites up now, which restarts it.
bool WantsSitesAppliedNow(Prompts& prompts);

/// Runs the two scripts that stop and start the services, one after the other. Each is
/// waited for a minute at most, while events are served.
void RestartCollector(const Application& application);

/// Says that the sites are saved, here and in the access log.
void TellSitesSaved(Application& application);

/// Asks whether to leave without saving. The sites that were saved one by one stay saved.
bool WantsToLeaveSites(Prompts& prompts);

}  // namespace tallix
