#include "foundation/text_lines.h"

#include "foundation/code_page.h"

namespace tallix {

TextLines::TextLines(const std::filesystem::path& file) : file_(file, std::ios::binary) {}

const std::string* TextLines::Next() {
    if (!std::getline(file_, line_)) return nullptr;
    if (!line_.empty() && line_.back() == '\r') line_.pop_back();
    if (!IsUtf8(line_)) line_ = FromAnsi(line_);
    return &line_;
}

}  // namespace tallix
