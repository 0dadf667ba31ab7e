// The desktop's own way of opening a web address.
#pragma once

#include <string>

namespace tallix::ui {

/// Opens the address in the person's browser and returns at once. Returns false where
/// the desktop knows no program for it.
bool OpenAddress(const std::string& address);

}  // namespace tallix::ui
