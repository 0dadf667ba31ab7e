// The made-up company of the demonstration data: its sites, its people and who works
// with whom. What a seed decides (numbers dialled, calls) is elsewhere.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "setup/demo_numbers.h"

namespace tallix {

struct DemoSite {
    std::string_view id;
    std::string_view name;
    std::string_view email;
    std::string_view address[4];
    std::string_view postcode;
    std::string_view area;       ///< dialling code
    std::string_view voicemail;  ///< extension that answers for those who do not
    std::string_view switchIp;
    std::string_view switchPort;
    std::string_view mapping;
    std::string_view systemCode;
    int firstExtension;
    int extensions;
    int trunks;
    /// The first three digits of the town's own numbers. None begins a country's code of
    /// the tariff, so that a local call is never priced as one abroad.
    std::string_view exchanges[4];
};

std::span<const DemoSite> DemoSites();

struct DemoExtension {
    std::string number;
    std::string_view name;
    std::size_t site;  ///< place in DemoSites
};

/// Everybody, by site and number. The first of a site is its switchboard.
std::vector<DemoExtension> DemoExtensions();

struct DemoGroup {
    std::string_view name;
    std::vector<int> members;  ///< places in DemoExtensions
};

std::vector<DemoGroup> DemoGroups();

/// The codes by which calls are charged to a client or a project.
std::span<const std::string_view> DemoAccounts();

/// Somebody outside who is called often, and the kind of number that answers there.
struct DemoContact {
    std::string_view name;
    NumberKind kind;
};

/// The address book, the most called of a kind first.
std::span<const DemoContact> DemoContacts();

}  // namespace tallix
