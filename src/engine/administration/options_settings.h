// The settings that the Options window edits, in one table: a row has the key, the control
// and its panel, the default, and the place in the save. The pages make their controls from
// it, and loading and saving walk it.
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "administration/command_files.h"
#include "session/application.h"

namespace tallix {

/// A panel of the window. Its controls are in the order of the table.
enum class OptionPanel {
    Serial,
    Listen,
    Proxy,
    Email,
    DebugLogging,
    System,
    Language,
    CustomReports,
    CompanyDocs,
    Colours,
    Alignment
};

/// The steps of "Save and Exit" that write settings, in their order.
enum class SaveStep { Collection, General, Services, Reports };

/// When a setting is written. Places order the settings of one step.
struct SaveOrder {
    SaveStep step;
    int place;
};

enum class SettingKind {
    Text,
    Password,
    Folder,   ///< its `unset` is appended to the program's folder
    List,     ///< one text of a list; a stored text that is not in it is kept
    Options,  ///< one of a few, all of them on the screen
    Switch,   ///< its choices are off and on, in this order
    Colour,   ///< nine digits, administration/report_design.h
};

/// A stored text, and the label of its control where each choice has one.
struct SettingChoice {
    std::string_view stored;
    std::string_view label;
};

struct SettingControl {
    SettingKind kind = SettingKind::Text;
    std::string_view unset{};      ///< what an absent or empty value counts as
    std::string_view otherwise{};  ///< what a text counts as that is not one of the choices
    std::span<const SettingChoice> choices{};
};

enum class Performance { Unaffected, MaySuffer };

/// What only some settings have.
struct SettingExtras {
    std::string_view onlyWhen{};  ///< the switch that must be on for this to be edited and written
    std::string_view tip{};
    std::string_view question{};  ///< title of the dialog that chooses a folder
    Performance performance = Performance::Unaffected;
};

struct OptionSetting {
    std::string_view key;
    std::string_view label;  ///< empty for Options, whose choices have labels, and Colour
    OptionPanel panel;
    SaveOrder saved;
    SettingControl control{};
    SettingExtras extras{};
};

/// The whole table.
std::span<const OptionSetting> AllSettings();

/// The row of a key. Throws std::out_of_range for an unknown key.
const OptionSetting& SettingOf(std::string_view key);

/// What the window edits: settings by their keys, as they are stored, and the texts of the
/// command files by the names of the files.
using OptionsValues = std::map<std::string, std::string, std::less<>>;

/// All values as the window shows them: each of the kinds Options and Switch is one of its
/// choices, and each colour has its nine digits.
OptionsValues LoadOptions(const Application& application);

/// Writes the settings of one step in their order. One whose switch is off keeps its stored
/// value. Throws std::out_of_range when `values` lacks a setting.
void WriteSettings(const SettingsStore& settings, const OptionsValues& values, SaveStep step);

}  // namespace tallix
