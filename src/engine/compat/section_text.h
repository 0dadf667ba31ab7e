// Texts made of "[section]" lines and entry lines below them: the common part of
// ini files and settings hives, which differ only in how an entry is written. A line
// that is neither is kept and ignored.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallix {

struct SectionEntry {
    std::string name;
    std::string value;  ///< as the format writes it
};

struct SectionFormat {
    /// Reads an entry line, which is neither empty nor a comment nor a section line
    /// and has no blanks round it. Nothing when the line is not an entry.
    std::optional<SectionEntry> (*readEntry)(std::string_view line);

    /// Whether entries below a second line of the same section count.
    bool sectionsContinue;
};

/// Calls `visit` with the section and the entry of each entry line, in their order,
/// until it returns false. Entries above all sections and below a damaged section
/// line belong to none and are left out. A byte order mark in front is passed over.
void VisitEntries(std::string_view text, const SectionFormat& format,
                  const std::function<bool(const std::string& section, const SectionEntry& entry)>& visit);

/// The value of the first entry of that name; names match without regard to case.
std::optional<std::string> FindEntry(std::string_view text, const SectionFormat& format,
                                     std::string_view section, std::string_view name);

/// The text with `line` in the place of the line that FindEntry reads, else at the end
/// of the section, else in a new section at the end. All other bytes stay.
std::string WithEntry(std::string_view text, const SectionFormat& format, std::string_view section,
                      std::string_view name, std::string_view line);

/// Whether a text holds a line break, which no line can carry.
bool HasLineBreak(std::string_view text);

}  // namespace tallix
