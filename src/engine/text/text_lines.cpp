#include "text/text_lines.h"

#include <string_view>

#include "text/code_page.h"

namespace tallix {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

// Spreadsheets put the mark before the text that they export.
TextLines::TextLines(const std::filesystem::path& file) : file_(file, std::ios::binary) {
    std::string start(kByteOrderMark.size(), '\0');
    if (file_.read(start.data(), static_cast<std::streamsize>(start.size())) && start == kByteOrderMark)
        return;
    file_.clear();
    file_.seekg(0);
}

const std::string* TextLines::Next() {
    if (!std::getline(file_, line_)) return nullptr;
    if (!line_.empty() && line_.back() == '\r') line_.pop_back();
    if (!IsUtf8(line_)) line_ = FromAnsi(line_);
    return &line_;
}

}  // namespace tallix
