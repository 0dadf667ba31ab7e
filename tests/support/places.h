// Where the tests find the checkout and the programs that were built from it.
#pragma once

#include <filesystem>

namespace tallix::test {

std::filesystem::path SourceFolder();
std::filesystem::path ReportsProgram();
std::filesystem::path SetupProgram();

}  // namespace tallix::test
