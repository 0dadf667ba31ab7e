// Batch files that drive the task scheduler of another system, and what they do here:
// each "schtasks" line creates or deletes a task of platform/task_scheduler.h.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallix {

/// Where and when a batch file runs.
struct BatchHost {
    std::filesystem::path applicationFolder;
    std::chrono::weekday today;  ///< weekly tasks keep it
};

/// The arguments of a line by the rules of that system: divided by blanks, double quotes
/// keep blanks together and a backslash makes one of them part of the text. An argument
/// may be in quotes in one place only; one that goes into quotes again, or never leaves
/// them, has a text in it that the line cannot hold. Nothing then.
std::optional<std::vector<std::string>> SplitBatchLine(std::string_view line);

/// Carries out the lines of a file in their order. What is refused leaves no sign: a line
/// of another command, a switch or word that is not known, a task of another program than
/// this one, which is taken from the host's application folder whatever folder is named.
void RunBatchFile(const std::filesystem::path& file, const BatchHost& host);

}  // namespace tallix
