// Whether the folders are there that every installation has.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "host/prompts.h"

namespace tallix {

/// Shows one critical message for each folder that is missing and then calls `onMissing`;
/// the check goes on after the first one. Folders are stored paths, with "\" or "/".
void RequireFolders(std::span<const std::string> folders, Prompts& prompts,
                    const std::function<void()>& onMissing);

}  // namespace tallix
