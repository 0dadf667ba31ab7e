#include "reporting/ansi_file.h"

#include "foundation/code_page.h"

namespace tallix {

namespace {

constexpr std::size_t kPiece = std::size_t{256} * 1024;  ///< bytes collected before a write
constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

AnsiFile::AnsiFile(const std::filesystem::path& file)
    : file_(std::fopen(file.c_str(), "wb")), complete_(file_ != nullptr) {
    waiting_.reserve(kPiece + kPiece / 8);
    if (file_) std::setvbuf(file_.get(), nullptr, _IONBF, 0);
}

AnsiFile::~AnsiFile() {
    Close();
}

void AnsiFile::Write(std::string_view utf8) {
    AppendAnsi(waiting_, utf8);
    if (waiting_.size() >= kPiece) Flush();
}

void AnsiFile::Line(std::string_view utf8) {
    Write(utf8);
    waiting_ += kLineEnd;
}

void AnsiFile::Lines(std::initializer_list<std::string_view> lines) {
    for (const std::string_view line : lines) Line(line);
}

bool AnsiFile::Close() {
    Flush();
    if (file_ && std::fclose(file_.release()) != 0) complete_ = false;
    return complete_;
}

void AnsiFile::Flush() {
    if (file_ && std::fwrite(waiting_.data(), 1, waiting_.size(), file_.get()) != waiting_.size()) {
        complete_ = false;
    }
    waiting_.clear();
}

}  // namespace tallix
