// One small file from a web server.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace tallix {

struct HttpRequest {
    std::string address;  ///< with its scheme, "http://" or "https://" in any case
    std::string proxy;    ///< host:port; empty for a direct connection, whatever the environment says
    std::chrono::milliseconds limit{10'000};  ///< for all of it
    std::size_t largest = 1 << 20;            ///< bytes that the answer may have
};

/// The bytes of the answer, redirections followed. Nothing when no answer comes, or
/// when it reports an error (status 400 and above), is too large, or is late.
std::optional<std::string> HttpGet(const HttpRequest& request);

}  // namespace tallix
