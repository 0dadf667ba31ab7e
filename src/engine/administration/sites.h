// The sites: one row of tblsite for each remote telephone system. A site gives the
// reports their address block, the mail its recipient, and the services their connection
// and line layout. The table's first row is the default site.
//
// The functions that read and write continue on errors: they ignore what the server refuses.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
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

/// A choice on the screen and the code that is stored for it.
struct NamedCode {
    std::string_view name;
    std::string_view code;
};

/// The layouts that are built into the services, and the outside systems.
inline constexpr std::array<NamedCode, 4> kBuiltInMappings{
    {{"Mitel 3300", "1"}, {"Samsung OfficeServ 7200", "2"}, {"Avaya V7", "3"}, {"Mitel 5000", "4"}}};
inline constexpr std::array<NamedCode, 3> kThirdPartySystems{
    {{"None", "0"}, {"Asterisk", "1"}, {"FreePBX", "2"}}};

/// The code of a layout: "C" for a custom one.
std::string_view SystemCode(std::string_view mapping);

/// The code of an outside system, and the system of a code. Unknown ones give the first of
/// kThirdPartySystems.
std::string_view ThirdPartyCode(std::string_view system);
std::string_view ThirdPartySystem(std::string_view code);

/// All sites in the table's own order.
std::vector<SiteRecord> ReadSites(const Session& session);

/// The number of sites. Throws DatabaseError.
std::int64_t CountSites(const Session& session);

enum class SiteEntry { Added, Edited };

/// Shows what is wrong with a site that is to be saved. Returns whether the save goes on: it
/// does without an address or a port, but not with a wrong address or too many sites.
bool MaySaveSite(Prompts& prompts, const SiteRecord& site, SiteEntry entry, std::size_t sites);

/// Adds a site with the number `sites` + 1. The table's key refuses a number that is taken,
/// which can happen after a site was deleted.
void AddSite(const Session& session, const SiteRecord& site, std::size_t sites);

/// Stores all but the number over the site of that number.
void UpdateSite(const Session& session, const SiteRecord& site);

/// Asks, then deletes the site; the numbers of the others stay.
void DeleteSite(const Application& application, const SiteRecord& site);

/// Asks whether the new sites take effect now, which restarts the Collector.
bool WantsSitesAppliedNow(Prompts& prompts);

/// Runs the two scripts that stop and start the services, one after the other. Waits at most a
/// minute for each, and serves events meanwhile.
void RestartCollector(const Application& application);

/// Reports the save in a message and in the access log.
void ReportSitesSaved(const Application& application);

/// Asks whether to leave without saving. The sites that were saved one by one stay saved.
bool WantsToLeaveSites(Prompts& prompts);

}  // namespace tallix
