#include "compat/ini_file.h"

#include "compat/section_text.h"
#include "platform/whole_file.h"
#include "text/code_page.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

/// Less what the user's mask takes away.
constexpr mode_t kModeOfNewFile = 0666;

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted =
        value.size() > 1 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::optional<SectionEntry> ReadIniEntry(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return {};
    return SectionEntry{std::string(TrimBlanks(line.substr(0, equals))),
                        std::string(WithoutQuotes(TrimBlanks(line.substr(equals + 1))))};
}

constexpr SectionFormat kIniFormat{&ReadIniEntry, false};

std::string CutToLongest(std::string_view value) {
    return std::string(Left(value, kLongestIniValue));
}

}  // namespace

IniFile::IniFile(const std::filesystem::path& file) {
    const std::optional<std::string> text = ReadWholeFile(file);
    if (text) Load(*text);
}

IniFile IniFile::FromText(std::string_view text) {
    IniFile file;
    file.Load(text);
    return file;
}

void IniFile::Load(std::string_view text) {
    VisitEntries(text, kIniFormat, [this](const std::string& section, const SectionEntry& entry) {
        entries_.push_back({section, entry.name, entry.value});
        return true;
    });
}

std::optional<std::string> IniFile::Find(std::string_view section, std::string_view key) const {
    for (const Entry& entry : entries_) {
        if (EqualNoCase(entry.section, section) && EqualNoCase(entry.key, key)) return entry.value;
    }
    return {};
}

std::string IniFile::Read(std::string_view section, std::string_view key) const {
    return CutToLongest(Find(section, key).value_or(std::string()));
}

std::string ReadIniKey(std::string_view section, std::string_view key, const std::filesystem::path& file) {
    const std::optional<std::string> text = ReadWholeFile(file);
    if (!text) return {};
    return CutToLongest(FindEntry(*text, kIniFormat, section, key).value_or(std::string()));
}

std::string WithIniKey(std::string_view text, std::string_view section, std::string_view key,
                       std::string_view value) {
    const std::string_view firstLine = value.substr(0, value.find_first_of("\r\n"));
    const std::string line = DecodeLine(key) + "=" + DecodeLine(firstLine);
    return WithEntry(text, kIniFormat, section, key, line);
}

bool WriteIniKey(std::string_view section, std::string_view key, std::string_view value,
                 const std::filesystem::path& file) {
    if (HasLineBreak(section) || HasLineBreak(key)) return false;
    return RewriteWholeFile(file, kModeOfNewFile,
                            [&](const std::string& text) { return WithIniKey(text, section, key, value); });
}

}  // namespace tallix
