// Where the program's files are on this machine, and the conversion of stored paths,
// which contain "\" as a contract with other programs, to paths of this system.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tallix {

/// The file name of the program.
inline constexpr std::string_view kProgramName = "Tallix_Reports";

/// The environment variables that decide where the program finds its files.
inline constexpr const char* kApplicationFolderVariable = "TALLIX_HOME";
inline constexpr const char* kRegistryVariable = "TALLIX_REGISTRY";
inline constexpr const char* kTempVariable = "Temp";

/// A stored path with each "\" turned to "/". The one place where that happens.
std::filesystem::path ToNativePath(std::string_view stored);

/// The path as it is spelled on the disk: stored names come from systems that
/// ignore case. The path itself where it exists, or where nothing like it does.
std::filesystem::path FindIgnoringCase(const std::filesystem::path& path);

/// The folder that holds the program and its data: the environment variable
/// TALLIX_HOME, else the folder of the running executable. Absolute, without a slash at its end.
std::filesystem::path ApplicationFolder();

/// The program that an operating-system task of that application folder starts: the one
/// in it, else the running one where it is this program, else the one that belongs there.
std::filesystem::path ProgramFile(const std::filesystem::path& applicationFolder);

/// The folder of the working files: the environment variable Temp, else PrivateFolder().
std::filesystem::path TempFolder();

/// A folder of this user alone (mode 0700) under the system's temporary folder, made on
/// demand. Throws std::runtime_error when that folder belongs to somebody else.
std::filesystem::path PrivateFolder();

/// The folder of the settings hive of all users (HKLM): the environment variable
/// TALLIX_REGISTRY, else /etc/tallix; and that of one user's hives: TALLIX_REGISTRY,
/// else $XDG_CONFIG_HOME/tallix, else ~/.config/tallix.
std::filesystem::path MachineSettingsFolder();
std::filesystem::path UserSettingsFolder();

/// The arguments after the program's name, joined by one blank.
std::string JoinCommandLine(int argumentCount, const char* const* arguments);

}  // namespace tallix
