#include "platform/buffered_file.h"

namespace tallix {

BufferedFile::BufferedFile(const std::filesystem::path& file)
    : file_(std::fopen(file.c_str(), "wb")), complete_(file_ != nullptr) {
    waiting_.reserve(kPiece + kPiece / 8);
    if (file_) std::setvbuf(file_.get(), nullptr, _IONBF, 0);
}

BufferedFile::~BufferedFile() {
    Close();
}

bool BufferedFile::Close() {
    Flush();
    if (file_ && std::fclose(file_.release()) != 0) complete_ = false;
    return complete_;
}

bool BufferedFile::Flush() {
    if (file_ && std::fwrite(waiting_.data(), 1, waiting_.size(), file_.get()) != waiting_.size()) {
        complete_ = false;
    }
    waiting_.clear();
    return complete_;
}

}  // namespace tallix
