// A text file in the system's single-byte code page, written in large pieces. Report
// pages and comma text are such files.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string_view>

#include "platform/buffered_file.h"

namespace tallix {

class AnsiFile {
public:
    /// Replaces the file. What is written to a file that cannot be opened is lost: a report
    /// run does not report failures of its page.
    explicit AnsiFile(const std::filesystem::path& file) : file_(file) {}

    /// Adds UTF-8 text; characters outside the code page become "?".
    void Write(std::string_view utf8);

    /// The same, followed by a carriage return and a line feed.
    void Line(std::string_view utf8);
    void Lines(std::initializer_list<std::string_view> lines);

    /// Writes what is waiting and closes. Returns whether all of it was written.
    bool Close() { return file_.Close(); }

private:
    BufferedFile file_;
};

}  // namespace tallix
