#include "startup/settings_required.h"

#include <array>

#include "startup/installation_check.h"
#include "text/ip_address.h"

namespace tallix {

bool IsDatabaseAddress(const std::string& text) {
    return IsIpAddress(text, EmptyPart::CountsAsZero);
}

void SaveDatabaseAddress(Application& application, const std::string& address,
                         const std::function<void()>& onMissing) {
    application.settings.Write("DBIP", address);
    const std::string folder = application.folder.string();
    const std::array<std::string, 2> needed = {folder + "\\Reports", folder + "\\Company Docs"};
    RequireFolders(needed, application.prompts, onMissing);
}

}  // namespace tallix
