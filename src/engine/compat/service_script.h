// Runs one of the services' scripts and waits for it.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>

namespace tallix {

/// The longest that a script is waited for.
inline constexpr std::chrono::milliseconds kServiceScriptLimit = std::chrono::seconds(60);

/// Runs a script by /bin/sh in the folder `from`, and calls `whileWaiting` about every
/// 20 ms until it has ended or `limit` is over. A script that takes longer goes on by
/// itself, and outlives this program if need be. Returns whether it has ended in time; one
/// that is missing or fails has ended as well.
bool RunServiceScript(const std::filesystem::path& script, const std::filesystem::path& from,
                      std::chrono::milliseconds limit, const std::function<void()>& whileWaiting);

}  // namespace tallix
