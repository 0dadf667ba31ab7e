// A file that is written from its beginning in large pieces.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tallix {

class BufferedFile {
public:
    /// Replaces the file. Where that fails, IsComplete is false and what is written is
    /// dropped.
    explicit BufferedFile(const std::filesystem::path& file);

    /// Writes what is waiting, whatever brought the end.
    ~BufferedFile();
    BufferedFile(const BufferedFile&) = delete;
    BufferedFile& operator=(const BufferedFile&) = delete;

    /// Where to append what comes next. Call Advance after each line or so.
    std::string& Waiting() { return waiting_; }

    /// Writes what is waiting once it has grown to a piece.
    void Advance() {
        if (waiting_.size() >= kPiece) Flush();
    }

    /// Writes what is waiting. Returns IsComplete.
    bool Flush();

    /// Writes what is waiting and closes. Returns IsComplete.
    bool Close();

    /// Whether the file was opened and took all that was written to it so far.
    bool IsComplete() const { return complete_; }

private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    static constexpr std::size_t kPiece = std::size_t{256} * 1024;

    std::unique_ptr<std::FILE, CloseFile> file_;
    std::string waiting_;
    bool complete_;
};

}  // namespace tallix
