// The files that hold what the Collector sends to a telephone system. They are in the folder
// "Collector" beside the program's folder. In memory their lines are separated by CR LF.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "session/application.h"

namespace tallix {

struct CommandFile {
    std::string_view name;
    std::string_view label;
};

/// In the order in which they are written.
inline constexpr std::array<CommandFile, 2> kCommandFiles = {
    {{"COMM.dat", "Serial Commands"}, {"IP.dat", "IP Commands"}}};

/// The lines of a file, without a line end after the last. Empty for an absent file.
std::string ReadCommandFile(const Application& application, const CommandFile& file);

/// Replaces a file with the text and a line end. Throws std::runtime_error when it cannot be
/// written.
void WriteCommandFile(const Application& application, const CommandFile& file, std::string_view text);

}  // namespace tallix
