#include "compat/section_text.h"

#include <set>

#include "text/code_page.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kLineBreaks = "\r\n";
constexpr char kComment = ';';

/// One line with its place in the text and the section that it belongs to.
struct Line {
    std::size_t begin;
    std::size_t end;  ///< after the line break
    std::string_view content;
};

/// Goes through a text line by line and keeps track of the section.
class LineWalker {
public:
    LineWalker(std::string_view text, const SectionFormat& format) : text_(text), format_(format) {
        if (text_.starts_with(kByteOrderMark)) position_ = kByteOrderMark.size();
    }

    bool Next() {
        if (position_ >= text_.size()) return false;
        const std::size_t lineBreak = text_.find('\n', position_);
        line_.begin = position_;
        line_.end = lineBreak == std::string_view::npos ? text_.size() : lineBreak + 1;
        line_.content = text_.substr(position_, line_.end - position_);
        while (!line_.content.empty() && kLineBreaks.find(line_.content.back()) != std::string_view::npos) {
            line_.content.remove_suffix(1);
        }
        line_.content = TrimBlanks(line_.content);
        position_ = line_.end;
        if (line_.content.starts_with('[')) EnterSection();
        return true;
    }

    const Line& Current() const { return line_; }

    /// Nothing above all sections and where the entries of a section do not count.
    const std::optional<std::string>& Section() const { return section_; }

    std::optional<SectionEntry> Entry() const {
        const std::string_view content = line_.content;
        if (!section_ || content.empty() || content.front() == '[' || content.front() == kComment) return {};
        return format_.readEntry(DecodeLine(content));
    }

private:
    void EnterSection() {
        section_.reset();
        const std::size_t end = line_.content.rfind(']');
        if (end == std::string_view::npos) return;
        std::string name = DecodeLine(TrimBlanks(line_.content.substr(1, end - 1)));
        const bool isNew = seen_.insert(LowerCase(name)).second;
        if (isNew || format_.sectionsContinue) section_ = std::move(name);
    }

    std::string_view text_;
    const SectionFormat& format_;
    std::size_t position_ = 0;
    Line line_{};
    std::optional<std::string> section_;
    std::set<std::string> seen_;
};

struct Place {
    std::size_t begin;
    std::size_t end;
};

/// Where the line goes: the place of the entry's present line, or the empty place
/// after the last line with content of the section's first stretch.
std::optional<Place> FindPlace(std::string_view text, const SectionFormat& format, std::string_view section,
                               std::string_view name) {
    std::optional<Place> sectionEnd;
    bool inFirstStretch = false;
    LineWalker walker(text, format);
    while (walker.Next()) {
        const Line& line = walker.Current();
        const bool inside = walker.Section() && EqualNoCase(*walker.Section(), section);
        const bool begins = line.content.starts_with('[');
        if (begins) inFirstStretch = inside && !sectionEnd;
        if (inFirstStretch && !line.content.empty()) sectionEnd = Place{line.end, line.end};
        if (!inside || begins) continue;
        const std::optional<SectionEntry> entry = walker.Entry();
        if (entry && EqualNoCase(entry->name, name)) return Place{line.begin, line.end};
    }
    return sectionEnd;
}

}  // namespace

void VisitEntries(std::string_view text, const SectionFormat& format,
                  const std::function<bool(const std::string& section, const SectionEntry& entry)>& visit) {
    LineWalker walker(text, format);
    while (walker.Next()) {
        const std::optional<SectionEntry> entry = walker.Entry();
        if (entry && !visit(*walker.Section(), *entry)) return;
    }
}

std::optional<std::string> FindEntry(std::string_view text, const SectionFormat& format,
                                     std::string_view section, std::string_view name) {
    LineWalker walker(text, format);
    while (walker.Next()) {
        if (!walker.Section() || !EqualNoCase(*walker.Section(), section)) continue;
        const std::optional<SectionEntry> entry = walker.Entry();
        if (entry && EqualNoCase(entry->name, name)) return entry->value;
    }
    return {};
}

std::string WithEntry(std::string_view text, const SectionFormat& format, std::string_view section,
                      std::string_view name, std::string_view line) {
    const std::string lineBreak = text.find("\r\n") == std::string_view::npos ? "\n" : "\r\n";
    const std::optional<Place> place = FindPlace(text, format, section, name);
    const std::size_t begin = place ? place->begin : text.size();
    std::string result(text.substr(0, begin));
    if (begin > 0 && begin == text.size() && !result.ends_with('\n')) result += lineBreak;
    if (!place) result += "[" + std::string(section) + "]" + lineBreak;
    result += line;
    result += lineBreak;
    result += text.substr(place ? place->end : text.size());
    return result;
}

bool HasLineBreak(std::string_view text) {
    return text.find_first_of(kLineBreaks) != std::string_view::npos;
}

}  // namespace tallix
