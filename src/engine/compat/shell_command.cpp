#include "compat/shell_command.h"

#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <optional>
#include <sstream>

#include "platform/detached_process.h"
#include "platform/paths.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".exe";

using Arguments = std::vector<std::string>;

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return lower;
}

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// Folders and the name of the program may hold blanks; its ending and a blank, or the
/// end of the line, follow it.
std::size_t ProgramLength(std::string_view line) {
    const std::string lower = Lower(line);
    std::size_t ending = lower.find(kEnding);
    while (ending != std::string::npos) {
        const std::size_t end = ending + kEnding.size();
        if (end == line.size() || line[end] == ' ') return end;
        ending = lower.find(kEnding, end);
    }
    return std::min(line.find(' '), line.size());
}

Arguments SplitArguments(std::string_view text) {
    Arguments arguments;
    bool quoted = false;
    bool open = false;
    for (const char letter : text) {
        const bool separates = letter == ' ' && !quoted;
        if (letter == '"') quoted = !quoted;
        if (!separates && !open) arguments.emplace_back();
        open = !separates;
        if (!separates && letter != '"') arguments.back() += letter;
    }
    return arguments;
}

bool IsProgram(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0;
}

std::optional<std::string> OnSearchPath(const std::string& name) {
    std::istringstream folders(Environment("PATH"));
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (folder.empty()) continue;
        const fs::path file = fs::path(folder) / name;
        if (IsProgram(file)) return file.string();
    }
    return {};
}

struct Editor {
    std::string_view desktop;  ///< as XDG_CURRENT_DESKTOP names it
    std::string_view program;
};

// Each desktop's own text editor; elsewhere the first that is installed.
constexpr Editor kEditors[] = {
    {"gnome", "gnome-text-editor"},
    {"gnome", "gedit"},
    {"kde", "kate"},
    {"kde", "kwrite"},
    {"xfce", "mousepad"},
    {"cinnamon", "xed"},
    {"mate", "pluma"},
    {"lxqt", "featherpad"},
    {"lxde", "l3afpad"},
    {"", "geany"},
    {"", "gnome-text-editor"},
    {"", "gedit"},
    {"", "mousepad"},
    {"", "kate"},
    {"", "kwrite"},
    {"", "xed"},
    {"", "pluma"},
    {"", "featherpad"},
    {"", "l3afpad"},
    {"", "xdg-open"},
};

Arguments TextEditor() {
    const std::string desktop = Lower(Environment("XDG_CURRENT_DESKTOP"));
    for (const Editor& editor : kEditors) {
        if (desktop.find(editor.desktop) == std::string::npos) continue;
        if (const auto program = OnSearchPath(std::string(editor.program))) return {*program};
    }
    return {};
}

// In the folder that the command names, else wherever it is installed.
Arguments Spreadsheet(const fs::path& folder) {
    for (const char* name : {"scalc", "localc"}) {
        if (IsProgram(folder / name)) return {(folder / name).string()};
    }
    if (const auto program = OnSearchPath("localc")) return {*program};
    for (const char* name : {"libreoffice", "soffice"}) {
        if (const auto program = OnSearchPath(name)) return {*program, "--calc"};
    }
    return {};
}

Arguments SameName(const fs::path& program) {
    const bool hasEnding = Lower(program.extension().string()) == kEnding;
    const fs::path plain = hasEnding ? program.parent_path() / program.stem() : program;
    if (plain.has_parent_path() && IsProgram(plain)) return {plain.string()};
    if (const auto found = OnSearchPath(plain.filename().string())) return {*found};
    return {};
}

Arguments ProgramFor(const fs::path& program) {
    const std::string name = Lower(program.filename().string());
    if (name == "notepad.exe") return TextEditor();
    if (name == "scalc.exe" || name == "excel.exe") return Spreadsheet(program.parent_path());
    return SameName(program);
}

void Start(Arguments arguments) {
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    RunDetached([&] { BecomeProgram(pointers.data()); });
}

}  // namespace

ShellCommand ReadShellCommand(std::string_view commandLine) {
    const std::size_t length = ProgramLength(commandLine);
    ShellCommand command{std::string(commandLine.substr(0, length)), {}};
    for (const std::string& argument : SplitArguments(commandLine.substr(length))) {
        command.arguments.push_back(ToNativePath(argument).string());
    }
    return command;
}

std::vector<std::string> TranslateCommand(const ShellCommand& command) {
    Arguments line = ProgramFor(ToNativePath(command.program));
    if (!line.empty()) line.insert(line.end(), command.arguments.begin(), command.arguments.end());
    return line;
}

void Shell(std::string_view commandLine) {
    Arguments line = TranslateCommand(ReadShellCommand(commandLine));
    if (!line.empty()) Start(std::move(line));
}

}  // namespace tallix
