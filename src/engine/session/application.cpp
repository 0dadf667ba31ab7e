#include "session/application.h"

#include <fmt/format.h>

namespace tallix {

std::string Version::Text() const {
    return fmt::format("{}.{}.{}", major, minor, revision);
}

Version ProgramVersion() {
    return {TALLIX_VERSION_MAJOR, TALLIX_VERSION_MINOR, TALLIX_VERSION_REVISION};
}

}  // namespace tallix
