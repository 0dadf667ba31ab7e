#include "compat/batch_file.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <map>
#include <sstream>

#include "platform/paths.h"
#include "platform/task_scheduler.h"
#include "platform/whole_file.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kProgramOfTasks = "\\Tallix_Reports.exe";
constexpr int kHours = 24;
constexpr int kMinutes = 60;

struct FrequencyWord {
    const char* word;
    TaskFrequency frequency;
};

constexpr std::array kFrequencies = {
    FrequencyWord{"Hourly", TaskFrequency::Hourly}, FrequencyWord{"Daily", TaskFrequency::Daily},
    FrequencyWord{"Weekly", TaskFrequency::Weekly}, FrequencyWord{"Monthly", TaskFrequency::Monthly}};

// Cron starts a task with hardly any environment; these decide which data it works on.
constexpr std::array kCarriedVariables = {kApplicationFolderVariable, kRegistryVariable, kTempVariable};

struct LessNoCase {
    bool operator()(const std::string& left, const std::string& right) const {
        return strcasecmp(left.c_str(), right.c_str()) < 0;
    }
};

/// A line's switches ("/TN") and their values; "/Create" and "/Delete" have none.
using Switches = std::map<std::string, std::string, LessNoCase>;

bool EqualWords(const std::string& left, const char* right) {
    return strcasecmp(left.c_str(), right) == 0;
}

/// Takes the argument at the front of a line.
std::optional<std::string> TakeArgument(std::string_view& line) {
    std::string argument;
    int quotes = 0;
    while (!line.empty() && (quotes % 2 != 0 || line.front() != ' ')) {
        const bool isQuote = line.front() == '"';
        if (isQuote) ++quotes;
        if (line.starts_with("\\\"")) line.remove_prefix(1);
        if (!isQuote) argument += line.front();
        line.remove_prefix(1);
    }
    const bool readable = quotes == 0 || quotes == 2;
    if (!readable) return {};
    return argument;
}

/// Nothing where a switch comes twice or lacks its value.
std::optional<Switches> ReadSwitches(const std::vector<std::string>& arguments) {
    Switches switches;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        const bool isCommand = EqualWords(name, "/Create") || EqualWords(name, "/Delete");
        if (!isCommand && i + 1 == arguments.size()) return {};
        if (!switches.emplace(name, isCommand ? "" : arguments[++i]).second) return {};
    }
    return switches;
}

std::string ValueOf(const Switches& switches, const char* name) {
    const auto found = switches.find(name);
    return found == switches.end() ? "" : found->second;
}

/// A number of two digits below `limit`.
bool ReadPair(std::string_view digits, int limit, int& number) {
    const char* const end = digits.data() + digits.size();
    const auto [stop, failure] = std::from_chars(digits.data(), end, number);
    return digits.size() == 2 && failure == std::errc() && stop == end && number >= 0 && number < limit;
}

/// "00:01:00" or "00:01".
bool ReadTime(std::string_view text, Task& task) {
    return text.size() >= 5 && text[2] == ':' && ReadPair(text.substr(0, 2), kHours, task.hour) &&
           ReadPair(text.substr(3, 2), kMinutes, task.minute);
}

bool ReadFrequency(const std::string& word, Task& task) {
    const auto* const found =
        std::find_if(kFrequencies.begin(), kFrequencies.end(),
                     [&](const FrequencyWord& known) { return EqualWords(word, known.word); });
    if (found == kFrequencies.end()) return false;
    task.frequency = found->frequency;
    return true;
}

bool ReadCommand(const std::string& text, const fs::path& applicationFolder, Task& task) {
    const auto words = SplitBatchLine(text);
    if (!words || words->empty() || !words->front().ends_with(kProgramOfTasks)) return false;
    task.command = {ProgramFile(applicationFolder).string()};
    for (std::size_t i = 1; i < words->size(); ++i)
        task.command.push_back(ToNativePath((*words)[i]).string());
    return true;
}

std::vector<std::string> CarriedEnvironment() {
    std::vector<std::string> settings;
    for (const char* name : kCarriedVariables) {
        const char* value = std::getenv(name);
        if (value == nullptr || *value == '\0') continue;
        settings.push_back(std::string(name) + "=" + fs::absolute(value).string());
    }
    return settings;
}

void Create(const Switches& switches, const BatchHost& host) {
    Task task;
    task.name = ValueOf(switches, "/TN");
    task.weekday = host.today;
    task.environment = CarriedEnvironment();
    const bool complete = ReadFrequency(ValueOf(switches, "/SC"), task) &&
                          ReadTime(ValueOf(switches, "/ST"), task) &&
                          ReadCommand(ValueOf(switches, "/TR"), host.applicationFolder, task);
    if (complete) CreateTask(task);
}

void RunLine(std::string_view line, const BatchHost& host) {
    const auto arguments = SplitBatchLine(line);
    if (!arguments || arguments->empty() || !EqualWords(arguments->front(), "schtasks")) return;
    const std::optional<Switches> switches = ReadSwitches(*arguments);
    if (!switches) return;
    if (switches->contains("/Create")) Create(*switches, host);
    if (switches->contains("/Delete")) DeleteTask(ValueOf(*switches, "/TN"));
}

}  // namespace

std::optional<std::vector<std::string>> SplitBatchLine(std::string_view line) {
    std::vector<std::string> arguments;
    while (true) {
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (line.empty()) return arguments;
        std::optional<std::string> argument = TakeArgument(line);
        if (!argument) return {};
        arguments.push_back(std::move(*argument));
    }
}

void RunBatchFile(const fs::path& file, const BatchHost& host) {
    std::istringstream lines(ReadWholeFile(file).value_or(""));
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r')) line.pop_back();
        RunLine(line, host);
    }
}

}  // namespace tallix
