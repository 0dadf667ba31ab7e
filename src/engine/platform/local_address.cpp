#include "platform/local_address.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

#include <array>
#include <memory>

namespace tallix {
namespace {

constexpr char kOwnAddress[] = "127.0.0.1";

bool IsInNetwork(const ifaddrs& entry) {
    const bool isUp = (entry.ifa_flags & IFF_UP) != 0 && (entry.ifa_flags & IFF_LOOPBACK) == 0;
    return isUp && entry.ifa_addr != nullptr && entry.ifa_addr->sa_family == AF_INET;
}

std::string AddressText(const sockaddr* address) {
    std::array<char, INET_ADDRSTRLEN> text{};
    inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in*>(address)->sin_addr, text.data(), text.size());
    return text.data();
}

}  // namespace

std::string LocalAddress() {
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0) return kOwnAddress;
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> owned(first, freeifaddrs);
    for (const ifaddrs* entry = first; entry != nullptr; entry = entry->ifa_next) {
        if (IsInNetwork(*entry)) return AddressText(entry->ifa_addr);
    }
    return kOwnAddress;
}

}  // namespace tallix
