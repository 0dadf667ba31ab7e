#include "platform/paths.h"

#include <fcntl.h>
#include <pwd.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <system_error>

namespace tallix {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMachineSettings = "/etc/tallix";
constexpr mode_t kPrivate = 0700;
constexpr mode_t kOthersMayAct = 0077;

/// An environment variable as a path; empty where it is missing.
fs::path FromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? fs::path() : fs::path(value);
}

fs::path WithoutFinalSlash(const fs::path& folder) {
    const fs::path plain = fs::absolute(folder).lexically_normal();
    return plain.has_filename() || plain == plain.root_path() ? plain : plain.parent_path();
}

fs::path RunningProgram() {
    return fs::read_symlink("/proc/self/exe");
}

fs::path HomeFolder() {
    fs::path home = FromEnvironment("HOME");
    if (!home.empty()) return home;
    const passwd* account = getpwuid(geteuid());
    return account == nullptr ? fs::path("/") : fs::path(account->pw_dir);
}

/// The folder may have been laid there by somebody else, to read or to bend what the
/// program writes; a symbolic link is such a bend.
void RequireOwnFolder(const fs::path& folder) {
    struct stat state {};
    const bool own =
        lstat(folder.c_str(), &state) == 0 && S_ISDIR(state.st_mode) && state.st_uid == geteuid();
    if (!own) throw std::runtime_error("the folder " + folder.string() + " belongs to somebody else");
    const bool open = (state.st_mode & kOthersMayAct) != 0;
    if (open && chmod(folder.c_str(), kPrivate) != 0) {
        throw std::runtime_error("the folder " + folder.string() + " is open to others");
    }
}

}  // namespace

fs::path ToNativePath(std::string_view stored) {
    std::string native(stored);
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

fs::path FindIgnoringCase(const fs::path& path) {
    std::error_code failure;
    if (fs::exists(path, failure) || !path.has_filename()) return path;
    const fs::path folder = FindIgnoringCase(path.parent_path());
    for (auto entry = fs::directory_iterator(folder, failure); !failure && entry != fs::directory_iterator();
         entry.increment(failure)) {
        const fs::path name = entry->path().filename();
        if (strcasecmp(name.c_str(), path.filename().c_str()) == 0) return folder / name;
    }
    return path;
}

fs::path ApplicationFolder() {
    const fs::path home = FromEnvironment(kApplicationFolderVariable);
    return WithoutFinalSlash(home.empty() ? RunningProgram().parent_path() : home);
}

fs::path ProgramFile(const fs::path& applicationFolder) {
    fs::path program = applicationFolder / kProgramName;
    const fs::path running = RunningProgram();
    std::error_code failure;
    const bool standsIn = !fs::exists(program, failure) && running.filename() == kProgramName;
    return standsIn ? running : program;
}

fs::path TempFolder() {
    const fs::path temp = FromEnvironment(kTempVariable);
    return temp.empty() ? PrivateFolder() : temp;
}

fs::path PrivateFolder() {
    fs::path folder = fs::temp_directory_path() / ("tallix-" + std::to_string(geteuid()));
    if (mkdir(folder.c_str(), kPrivate) != 0 && errno != EEXIST) {
        throw std::system_error(errno, std::generic_category(), "the folder " + folder.string());
    }
    RequireOwnFolder(folder);
    return folder;
}

fs::path MachineSettingsFolder() {
    const fs::path registry = FromEnvironment(kRegistryVariable);
    return registry.empty() ? fs::path(kMachineSettings) : registry;
}

fs::path UserSettingsFolder() {
    fs::path registry = FromEnvironment(kRegistryVariable);
    if (!registry.empty()) return registry;
    const fs::path config = FromEnvironment("XDG_CONFIG_HOME");
    return (config.is_absolute() ? config : HomeFolder() / ".config") / "tallix";
}

std::string JoinCommandLine(int argumentCount, const char* const* arguments) {
    std::string line;
    for (int index = 1; index < argumentCount; ++index) {
        if (index > 1) line += ' ';
        line += arguments[index];
    }
    return line;
}

}  // namespace tallix
