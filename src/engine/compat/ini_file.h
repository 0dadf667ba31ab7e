// Ini files with the semantics of the platform's profile files: sections and keys
// match without regard to case, the first of two equal keys wins, blanks around
// key and value and one pair of quotes round the value are dropped, lines that
// begin with ";" are comments. Of two sections of one name the first one counts.
// Lines are decoded by DecodeLine (text/code_page.h) and written as UTF-8.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallix {

/// The greatest length in characters of a value that ReadIniKey returns.
inline constexpr std::size_t kLongestIniValue = 254;

/// The keys of one file, read once. A file that cannot be read has no keys.
class IniFile {
public:
    explicit IniFile(const std::filesystem::path& file);

    /// The keys of a text in memory.
    static IniFile FromText(std::string_view text);

    /// The key's text cut to kLongestIniValue characters; empty where it is absent.
    std::string Read(std::string_view section, std::string_view key) const;

    /// The key's text uncut; nothing where it is absent.
    std::optional<std::string> Find(std::string_view section, std::string_view key) const;

private:
    IniFile() = default;
    void Load(std::string_view text);

    struct Entry {
        std::string section;
        std::string key;
        std::string value;
    };
    std::vector<Entry> entries_;
};

/// Reads one key: the text, cut to kLongestIniValue characters, or the empty string.
std::string ReadIniKey(std::string_view section, std::string_view key, const std::filesystem::path& file);

/// The text with one key set and all other lines as they are. A value ends at its
/// first line break, as it would when read; section and key have none.
std::string WithIniKey(std::string_view text, std::string_view section, std::string_view key,
                       std::string_view value);

/// Writes one key, making the file, the section and the key as needed and leaving all
/// other lines as they are. The new file replaces the old one whole. Returns whether
/// it was written; a section or a key with a line break is not.
bool WriteIniKey(std::string_view section, std::string_view key, std::string_view value,
                 const std::filesystem::path& file);

}  // namespace tallix
