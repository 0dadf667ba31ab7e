// Text files that somebody else may have written, read line by line in bounded memory: lines end
// with CR LF, LF or the file, and each is taken as UTF-8 where it is valid UTF-8, as
// Windows-1252 otherwise. A byte order mark before the first one is not part of it. Any bytes
// and any length of line are a text.
//
//     TextLines lines(file);
//     while (const std::string* line = lines.Next()) Use(*line);
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace tallix {

class TextLines {
public:
    /// A file that cannot be opened has no lines.
    explicit TextLines(const std::filesystem::path& file);

    bool IsOpen() const { return file_.is_open(); }

    /// The next line without its end, valid until the next call; null at the end. A file
    /// that ends with a line end has no empty line after it.
    const std::string* Next();

private:
    std::ifstream file_;
    std::string line_;
};

}  // namespace tallix
