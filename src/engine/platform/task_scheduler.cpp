#include "platform/task_scheduler.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <stdexcept>

#include "platform/child_process.h"
#include "platform/file_lock.h"
#include "platform/paths.h"

namespace tallix {
namespace {

constexpr std::size_t kLongestCommand = 998;  ///< cron cuts a longer one off without a word
constexpr std::string_view kCarriageReturnShown = "\\r";

std::string MarkOf(std::string_view name) {
    return fmt::format("# {}", name);
}

bool IsControl(char letter) {
    return static_cast<unsigned char>(letter) < ' ' || letter == '\x7f';
}

bool IsOneLine(std::string_view text) {
    return std::none_of(text.begin(), text.end(), IsControl);
}

/// A word that the shell reads as it is written. Cron, which reads the entry first, takes
/// an unescaped percent sign for a line break.
std::string Quoted(std::string_view word) {
    std::string quoted = "'";
    for (const char letter : word) {
        if (letter == '\'') quoted += "'\\'";
        if (letter == '%') quoted += "''\\";
        quoted += letter;
    }
    return quoted + "'";
}

std::string QuotedSetting(std::string_view setting) {
    const std::size_t value = setting.find('=') + 1;
    return std::string(setting.substr(0, value)) + Quoted(setting.substr(value));
}

// The settings go through a program, as the shell may be one that knows no assignments
// in front of a command.
std::string CommandOf(const Task& task) {
    std::string command = task.environment.empty() ? "" : "/usr/bin/env ";
    for (const std::string& setting : task.environment) command += QuotedSetting(setting) + " ";
    for (const std::string& word : task.command) command += Quoted(word) + " ";
    command.pop_back();
    return command;
}

std::string TimeOf(const Task& task) {
    switch (task.frequency) {
        case TaskFrequency::Hourly:
            return fmt::format("{} * * * *", task.minute);
        case TaskFrequency::Daily:
            return fmt::format("{} {} * * *", task.minute, task.hour);
        case TaskFrequency::Weekly:
            return fmt::format("{} {} * * {}", task.minute, task.hour, task.weekday.c_encoding());
        case TaskFrequency::Monthly:
            return fmt::format("{} {} 1 * *", task.minute, task.hour);
    }
    throw std::invalid_argument("no such frequency");
}

/// Takes the first line, with its line feed, from the front of a text.
std::string_view TakeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1);
    text.remove_prefix(line.size());
    return line;
}

// Somebody may have taken the entry out and left the line that names it.
bool IsEntry(std::string_view line) {
    return line.find(kProgramName) != std::string_view::npos && !line.starts_with("# ");
}

std::optional<std::string> ReadCrontab() {
    ChildResult listed = RunChild({"crontab", "-l"});
    if (listed.status != 0) {
        if (listed.status < 0 || !listed.error.starts_with("no crontab for")) return {};
        return "";
    }
    // A listing shows carriage returns as two letters; an editor gets the text itself.
    if (listed.out.find(kCarriageReturnShown) != std::string::npos) {
        listed = RunChild({"env", "VISUAL=cat", "crontab", "-e"});
        if (listed.status != 0) return {};
    }
    return std::move(listed.out);
}

bool WriteCrontab(const std::string& text) {
    const ChildResult written = text.empty() ? RunChild({"crontab", "-r"}) : RunChild({"crontab", "-"}, text);
    return written.status == 0;
}

bool ChangeCrontab(const std::function<std::string(std::string_view)>& change) try {
    const FileLock lock(PrivateFolder() / "crontab.lock");
    const std::optional<std::string> before = lock.IsHeld() ? ReadCrontab() : std::nullopt;
    if (!before) return false;
    const std::string after = change(*before);
    return after == *before || WriteCrontab(after);
} catch (const std::runtime_error&) {
    return false;  // no place for the lock
}

}  // namespace

bool IsTaskName(std::string_view name) {
    return !name.empty() && IsOneLine(name) && name.find_first_of("/\\") == std::string_view::npos;
}

bool CreateTask(const Task& task) {
    const std::string command = CommandOf(task);
    if (!IsTaskName(task.name) || !IsOneLine(command) || command.size() > kLongestCommand) return false;
    return ChangeCrontab([&](std::string_view crontab) { return WithTask(crontab, task); });
}

bool DeleteTask(std::string_view name) {
    return ChangeCrontab([&](std::string_view crontab) { return WithoutTask(crontab, name); });
}

std::string WithTask(std::string_view crontab, const Task& task) {
    std::string text = WithoutTask(crontab, task.name);
    if (!text.empty() && text.back() != '\n') text += '\n';
    return text + fmt::format("{}\n{} {}\n", MarkOf(task.name), TimeOf(task), CommandOf(task));
}

std::string WithoutTask(std::string_view crontab, std::string_view name) {
    const std::string mark = MarkOf(name) + "\n";
    std::string kept;
    while (!crontab.empty()) {
        const std::string_view line = TakeLine(crontab);
        if (line != mark) {
            kept += line;
        } else if (!crontab.empty()) {
            std::string_view rest = crontab;
            if (IsEntry(TakeLine(rest))) crontab = rest;
        }
    }
    return kept;
}

}  // namespace tallix
