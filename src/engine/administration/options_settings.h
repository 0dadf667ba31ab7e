// The settings that the Options window edits, in one table: the key and the label of
// each, what an absent value is shown as, and which texts are ever stored. Loading, the
// controls of the pages and the save all go by it.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "session/application.h"

namespace tallix {

enum class SettingKind {
    Text,
    Password,
    List,     ///< one text of a list; a stored text that is not in it is kept
    Options,  ///< one of a few, all of them on the screen
    Switch,   ///< its choices are off and on, in this order
    Colour,   ///< nine digits, administration/report_design.h
};

/// A stored text and the words that stand for it on the screen.
struct SettingChoice {
    std::string_view stored;
    std::string_view label;
};

struct OptionSetting {
    std::string_view key;
    std::string_view label{};  ///< none for Options, which stand by their choices, and Colour
    SettingKind kind = SettingKind::Text;
    std::string_view unset{};      ///< what an absent or empty value counts as
    std::string_view otherwise{};  ///< what a text counts as that is none of the choices
    std::span<const SettingChoice> choices{};
    std::string_view onlyWhen{};  ///< the switch that must be on for this to be edited and written
};

/// The row of a key. Throws std::out_of_range for a key that is none of the window's.
const OptionSetting& SettingOf(std::string_view key);

/// The files that hold what the Collector sends to a telephone system, in the order of
/// their writing.
struct CommandFile {
    std::string_view name;
    std::string_view label;
};
inline constexpr std::array<CommandFile, 2> kCommandFiles = {
    {{"COMM.dat", "Serial Commands"}, {"IP.dat", "IP Commands"}}};

/// What the window edits: settings by their keys, as they are stored, and the texts of the
/// command files by the files' names, with CR LF between their lines.
using OptionsValues = std::map<std::string, std::string, std::less<>>;

/// All values as the window shows them: each of the kinds Options and Switch is one of its
/// choices, and each colour has its nine digits.
OptionsValues LoadOptions(const Application& application);

/// Whether a switch is on among the values.
bool IsOn(const OptionsValues& values, std::string_view key);

/// Writes some settings in the order given. One whose switch is off keeps its stored value.
void WriteSettings(const SettingsStore& settings, const OptionsValues& values,
                   std::span<const std::string_view> keys);

/// Replaces a command file, with a line end added. Throws std::runtime_error when it cannot
/// be written.
void WriteCommandFile(const Application& application, const OptionsValues& values, std::string_view name);

}  // namespace tallix
