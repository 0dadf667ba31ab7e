// The settings that the Reports Tool shares with the services: text values under a
// root, a path and a name. A root is one of six predefined ones, each a hive file of
// its own (HKLM.reg, HKCU.reg, ...), or the path of an existing ini file.
//
//     std::string feed;
//     settings.fReadValue("HKLM", kApplicationKey, "ListenFeed", "S", "", feed);
//
// Two processes may write at once: each write takes an exclusive lock, reads the
// hive anew, and replaces it whole by a rename.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "host/prompts.h"

namespace tallix {

/// The key of the application under "HKLM".
inline constexpr std::string_view kApplicationKey = "Software\\Quillmere Software\\Tallix";

class SettingsStore {
public:
    /// Hives are in `machineFolder` ("HKLM") and `userFolder` (all other roots).
    /// `prompts` must outlive the store.
    SettingsStore(std::filesystem::path machineFolder, std::filesystem::path userFolder, Prompts& prompts);

    /// Reads a value into `result`, which holds `defaultText` after every failure. Type
    /// "S" is a text, any other a Boolean, which reads as "True" or "False". A text out
    /// of an ini file is read into a buffer as long as the default: it is cut to one
    /// character less, so that an empty default gives an empty text. A root that is
    /// neither shows one message.
    void fReadValue(std::string_view root, std::string_view path, std::string_view name,
                    std::string_view type, std::string_view defaultText, std::string& result) const;

    /// Writes a value, making its key as needed. A failure of any cause shows one
    /// message, after that of an unknown root.
    void fWriteValue(std::string_view root, std::string_view path, std::string_view name,
                     std::string_view type, std::string_view value) const;

    /// The forms that nearly all callers use: a text under kApplicationKey.
    std::string Read(std::string_view name) const;
    void Write(std::string_view name, std::string_view value) const;

private:
    enum class RootKind { Unknown, Hive, IniFile };

    RootKind fTopKey(std::string_view root) const;
    std::filesystem::path HiveFile(std::string_view root) const;
    bool WriteHive(std::string_view root, std::string_view path, std::string_view name, std::string_view type,
                   std::string_view value) const;

    std::filesystem::path machineFolder_;
    std::filesystem::path userFolder_;
    Prompts& prompts_;
};

}  // namespace tallix
