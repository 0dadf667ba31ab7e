// A text file in the system's single-byte code page, written in large pieces. Report
// pages and comma text are made of it.
#pragma once

#include <cstdio>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

namespace tallix {

class AnsiFile {
public:
    /// Replaces the file. A file that cannot be opened takes what is written and keeps
    /// none of it: a report run reports no fault of its page.
    explicit AnsiFile(const std::filesystem::path& file);
    ~AnsiFile();
    AnsiFile(const AnsiFile&) = delete;
    AnsiFile& operator=(const AnsiFile&) = delete;

    /// Adds UTF-8 text; characters outside the code page become "?".
    void Write(std::string_view utf8);

    /// The same, with a carriage return and a line feed behind it.
    void Line(std::string_view utf8);
    void Lines(std::initializer_list<std::string_view> lines);

    /// Writes what is waiting and closes. Returns whether all of it was written.
    bool Close();

private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void Flush();

    std::unique_ptr<std::FILE, CloseFile> file_;
    std::string waiting_;
    bool complete_;
};

}  // namespace tallix
