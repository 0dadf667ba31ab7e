#include "startup/command_line.h"

#include <algorithm>

#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::string_view kDefinitionEnding = ".SSR";
constexpr std::string_view kBackupWord = "Backup";

std::string_view WithoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

// Blanks in front of the path are dropped, those after it stay. A quote at the front
// takes the last character with it, whatever that is: a quoted path with a blank
// after it therefore names nothing.
std::string_view PathText(std::string_view commandLine) {
    const std::string_view text = WithoutLeadingBlanks(commandLine);
    if (!text.starts_with('"')) return text;
    const std::string_view cut = Left(text, Len(text) - 1);
    return cut.empty() ? cut : cut.substr(1);
}

}  // namespace

RunRequest DecideRun(std::string_view commandLine) {
    if (commandLine.empty()) return {StartKind::Interactive, ""};
    const std::string_view path = PathText(commandLine);
    if (path.ends_with(kDefinitionEnding)) return {StartKind::ScheduledReport, std::string(path)};
    if (commandLine == kBackupWord) return {StartKind::Backup, ""};
    return {StartKind::Nothing, ""};
}

}  // namespace tallix
