// Starting another program from a command line that was written for another system:
// unquoted program path with "\" between its folders and ".exe" at its end, arguments
// between double quotes. No shell reads the line, so a file name may hold anything.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallix {

/// A command line taken apart: the path of the program as written, and its
/// arguments without quotes, as paths of this system.
struct ShellCommand {
    std::string program;
    std::vector<std::string> arguments;
};

ShellCommand ReadShellCommand(std::string_view commandLine);

/// The program and its arguments that run a command on this system: the desktop's text
/// editor for notepad.exe, LibreOffice Calc for scalc.exe and Excel.exe, else the program
/// of the same name without ".exe", in its folder or on the search path. Empty when no
/// such program is installed.
std::vector<std::string> TranslateCommand(const ShellCommand& command);

/// Starts the program of a command line by itself and does not wait for it. What cannot
/// be started is passed over.
void Shell(std::string_view commandLine);

}  // namespace tallix
