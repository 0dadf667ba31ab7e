#include "administration/command_files.h"

#include <fstream>
#include <stdexcept>

#include "platform/whole_file.h"
#include "text/code_page.h"

namespace tallix {
namespace {

constexpr char kCollectorFolder[] = "Collector";
constexpr std::string_view kLineEnd = "\r\n";
constexpr mode_t kModeOfNewFile = 0644;

std::filesystem::path PathOf(const Application& application, const CommandFile& file) {
    return application.folder.parent_path() / kCollectorFolder / file.name;
}

}  // namespace

std::string ReadCommandFile(const Application& application, const CommandFile& file) {
    std::ifstream stream(PathOf(application, file), std::ios::binary);
    std::string text;
    bool first = true;
    for (std::string line; std::getline(stream, line); first = false) {
        if (line.ends_with('\r')) line.pop_back();
        if (!first) text += kLineEnd;
        text += DecodeLine(line);
    }
    return text;
}

void WriteCommandFile(const Application& application, const CommandFile& file, std::string_view text) {
    const std::filesystem::path path = PathOf(application, file);
    const auto written = [&](const std::string&) { return ToAnsi(text).append(kLineEnd); };
    if (RewriteWholeFile(path, kModeOfNewFile, written)) return;
    throw std::runtime_error("The file " + path.string() + " cannot be written");
}

}  // namespace tallix
