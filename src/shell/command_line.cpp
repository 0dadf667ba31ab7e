#include "shell/command_line.h"

#include <algorithm>

#include "foundation/ini_file.h"
#include "foundation/text_conversion.h"
#include "platform/paths.h"

namespace tallix {
namespace {

constexpr std::string_view kDefinitionEnding = ".SSR";
constexpr std::string_view kBackupWord = "Backup";
constexpr std::string_view kSection = "General";

std::string_view WithoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

// Blanks in front of the path are dropped, those behind it stay. A quote at the front
// takes the last character with it, whatever that is: a quoted path with a blank
// behind it therefore names nothing.
std::string_view PathText(std::string_view commandLine) {
    const std::string_view text = WithoutLeadingBlanks(commandLine);
    if (!text.starts_with('"')) return text;
    const std::string_view cut = Left(text, Len(text) - 1);
    return cut.empty() ? cut : cut.substr(1);
}

}  // namespace

RunRequest DecideRun(std::string_view commandLine) {
    if (commandLine.empty()) return {RunKind::Interactive, ""};
    const std::string_view path = PathText(commandLine);
    if (path.ends_with(kDefinitionEnding)) return {RunKind::ScheduledReport, std::string(path)};
    if (commandLine == kBackupWord) return {RunKind::Backup, ""};
    return {RunKind::Nothing, ""};
}

ScheduledRun ReadScheduledRun(const std::string& pathText) {
    const IniFile definition(ToNativePath(pathText));
    return {definition.Read(kSection, "Report"), definition.Read(kSection, "User"),
            definition.Read(kSection, "Output"), definition.Read(kSection, "OutputLocation"), pathText};
}

}  // namespace tallix
