// The number tables that the program looks codes up in and never writes: areas,
// providers, countries. They come from comma texts of the installation.
#pragma once

#include <filesystem>
#include <iosfwd>

#include "database/connection.h"

namespace tallix {

/// Fills each of the tables that is empty from its file in `folder` and says so. Throws
/// SetupError when a file cannot be read or holds a line that is not a code and a name.
void FillReferenceData(ado::Connection& connection, const std::filesystem::path& folder, std::ostream& out);

}  // namespace tallix
