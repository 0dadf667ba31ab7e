#include "support/places.h"

namespace tallix::test {

std::filesystem::path SourceFolder() {
    return TALLIX_SOURCE_DIR;
}

std::filesystem::path ReportsProgram() {
    return TALLIX_REPORTS_PROGRAM;
}

std::filesystem::path SetupProgram() {
    return TALLIX_SETUP_PROGRAM;
}

}  // namespace tallix::test
