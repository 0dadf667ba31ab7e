// A text file in the system's single-byte code page, written in large pieces. Report
// pages and comma text are made of it.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string_view>

#include "platform/buffered_file.h"

namespace tallix {

class AnsiFile {
public:
    /// Replaces the file. A file that cannot be opened takes what is written and keeps
    /// none of it: a report run reports no fault of its page.
    explicit AnsiFile(const std::filesystem::path& file) : file_(file) {}

    /// Adds UTF-8 text; characters outside the code page become "?".
    void Write(std::string_view utf8);

    /// The same, with a carriage return and a line feed behind it.
    void Line(std::string_view utf8);
    void Lines(std::initializer_list<std::string_view> lines);

    /// Writes what is waiting and closes. Returns whether all of it was written.
    bool Close() { return file_.Close(); }

private:
    BufferedFile file_;
};

}  // namespace tallix
