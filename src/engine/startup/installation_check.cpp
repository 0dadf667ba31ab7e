#include "startup/installation_check.h"

#include <filesystem>
#include <system_error>

#include "platform/paths.h"

namespace tallix {
namespace {

constexpr char kDamagedInstallation[] =
    "There is a problem with your Tallix Reports installation. Please reinstall!";

bool FolderExists(const std::string& stored) {
    std::error_code ignored;
    return std::filesystem::is_directory(ToNativePath(stored), ignored);
}

}  // namespace

void RequireFolders(std::span<const std::string> folders, Prompts& prompts,
                    const std::function<void()>& onMissing) {
    for (const std::string& folder : folders) {
        if (FolderExists(folder)) continue;
        prompts.Show({"Tallix Reports", kDamagedInstallation, MessageIcon::Critical});
        onMissing();
    }
}

}  // namespace tallix
