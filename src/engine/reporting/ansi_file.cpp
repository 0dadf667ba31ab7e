#include "reporting/ansi_file.h"

#include "text/code_page.h"

namespace tallix {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

void AnsiFile::Write(std::string_view utf8) {
    AppendAnsi(file_.Waiting(), utf8);
    file_.Advance();
}

void AnsiFile::Line(std::string_view utf8) {
    Write(utf8);
    file_.Waiting() += kLineEnd;
}

void AnsiFile::Lines(std::initializer_list<std::string_view> lines) {
    for (const std::string_view line : lines) Line(line);
}

}  // namespace tallix
