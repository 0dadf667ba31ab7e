#include "administration/options_settings.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "administration/report_design.h"

namespace tallix {
namespace {

using enum OptionPanel;
using enum SaveStep;
using enum SettingKind;

constexpr std::array<SettingChoice, 2> kOffOn = {{{"0", ""}, {"1", ""}}};
constexpr std::array<SettingChoice, 2> kNetworkOrSerial = {{{"1", ""}, {"2", ""}}};

/// A list whose texts are stored as they are shown.
template <typename... Texts>
constexpr std::array<SettingChoice, sizeof...(Texts)> Same(Texts... texts) {
    return {{SettingChoice{texts, texts}...}};
}

constexpr auto kCommPorts = Same("1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14");
constexpr auto kBaudRates = Same("110", "300", "1200", "2400", "4800", "9600", "19200", "38400", "57600",
                                 "115200", "230400", "460800", "921600");
constexpr auto kParities = Same("N", "E", "O", "M", "S");
constexpr auto kBits = Same("5", "6", "7", "8");
constexpr auto kStopBits = Same("1", "1.5", "2");
constexpr auto kCurrencies = Same("Lek", "$", "£", "€", "R$", "¥", "kn", "kr", "CHF");
constexpr std::array<SettingChoice, 6> kLanguages = {{{"1033", "English"},
                                                      {"1036", "French"},
                                                      {"3082", "Spanish"},
                                                      {"1031", "German"},
                                                      {"1040", "Italian"},
                                                      {"1041", "Japanese"}}};
constexpr std::array<SettingChoice, 2> kNumberNames = {
    {{"1", "Use Area Codes"}, {"2", "Use Provider Names"}}};
constexpr std::array<SettingChoice, 3> kAlignments = {{{"L", "Left"}, {"C", "Centre"}, {"R", "Right"}}};

constexpr SettingControl TextOr(std::string_view unset) {
    return {.unset = unset};
}

constexpr SettingControl ListOf(std::span<const SettingChoice> choices, std::string_view unset = "") {
    return {List, unset, "", choices};
}

constexpr SettingControl OneOf(std::span<const SettingChoice> choices, std::string_view usual) {
    return {Options, usual, usual, choices};
}

constexpr SettingControl FolderOr(std::string_view unset) {
    return {Folder, unset};
}

constexpr SettingControl ColourOr(std::size_t colour) {
    return {Colour, kDesignColours.at(colour).usual};
}

/// Off when absent; any text but "0" turns it on.
constexpr SettingControl kOffUnlessSet{Switch, "0", "1", kOffOn};

constexpr SettingExtras kMaySlow{.performance = Performance::MaySuffer};
constexpr SettingExtras kListening{.onlyWhen = "ListenFeed"};
constexpr SettingExtras kByProxy{.onlyWhen = "UseProxy"};
constexpr SettingExtras kLostCalls{.tip = "Select if to include 'lost' calls",
                                   .performance = Performance::MaySuffer};
constexpr SettingExtras kReportsFolder{.tip = "Enter location of custom reports",
                                       .question = "Select Reports Folder"};
constexpr SettingExtras kDocsFolder{.question = "Select Company Docs Folder"};

constexpr OptionSetting kSettings[] = {
    {"CommMethod",
     "Enable Comm port collection",
     Serial,
     {Collection, 6},
     {Switch, "1", "1", kNetworkOrSerial}},
    {"SwitchComm", "Computer Comm Port:", Serial, {Collection, 1}, ListOf(kCommPorts)},
    {"SwitchBaud", "PBX Baud Rate:", Serial, {Collection, 2}, ListOf(kBaudRates)},
    {"SwitchParity", "PBX Parity:", Serial, {Collection, 3}, ListOf(kParities)},
    {"SwitchBits", "PBX Bits:", Serial, {Collection, 4}, ListOf(kBits)},
    {"SwitchStop", "PBX Stop Bit:", Serial, {Collection, 5}, ListOf(kStopBits)},
    {"ListenFeed", "Set Collector to Listen", Listen, {General, 3}, kOffUnlessSet},
    {"ListenPort", "Listen Port:", Listen, {General, 4}, TextOr("1752"), kListening},
    {"UseProxy", "Use proxy server to connect to the Internet", Proxy, {General, 6}, kOffUnlessSet},
    {"ProxyIP", "Proxy Server:", Proxy, {General, 7}, {}, kByProxy},
    {"ProxyPort", "Proxy Port:", Proxy, {General, 8}, {}, kByProxy},
    {"SMTPServer", "SMTP Server:", Email, {Services, 2}},
    {"SMTPPort", "SMTP Port:", Email, {Services, 3}},
    {"SMTPUser", "SMTP User:", Email, {Services, 4}},
    {"SMTPPass", "SMTP Pass:", Email, {Services, 5}, {Password}},
    {"SMTPEmail", "Server Email:", Email, {Services, 6}},
    {"SMTPAuth", "SMTP Server Requires Authentication", Email, {Services, 7}, {Switch, "1", "1", kOffOn}},
    {"SMTPSSL", "SMTP Requires SSL", Email, {Services, 8}, kOffUnlessSet},
    {"TimeOpen", "Open Time:", System, {Services, 9}, TextOr("08:30")},
    {"TimeClosed", "Closed Time:", System, {Services, 10}, TextOr("17:30")},
    {"LostCalls", "Include 'lost' calls in call records", System, {Reports, 3}, kOffUnlessSet, kLostCalls},
    {"V1Reports", "Use New Style Reports", System, {Reports, 4}, kOffUnlessSet},
    {"CostCompute",
     "Compute call costs per report",
     System,
     {General, 1},
     {Switch, "1", "0", kOffOn},
     kMaySlow},
    {"AreaCode", "Show Area code in report", System, {Collection, 7}, kOffUnlessSet, kMaySlow},
    {"Providers", "", System, {Reports, 5}, OneOf(kNumberNames, "2")},
    {"DebugLogging", "Enabled?", OptionPanel::DebugLogging, {Services, 1}, kOffUnlessSet, kMaySlow},
    {"Lang", "", Language, {General, 5}, OneOf(kLanguages, "1033")},
    {"Currency", "Currency:", Language, {General, 9}, ListOf(kCurrencies, "£")},
    {"ReportsLocation", "Location:", CustomReports, {Reports, 1}, FolderOr(""), kReportsFolder},
    {"DocsLocation", "Location:", CompanyDocs, {Reports, 2}, FolderOr("\\Company Docs"), kDocsFolder},
    {kDesignColours[0].key, "", Colours, {Reports, 6}, ColourOr(0)},
    {kDesignColours[1].key, "", Colours, {Reports, 7}, ColourOr(1)},
    {kDesignColours[2].key, "", Colours, {Reports, 8}, ColourOr(2)},
    {kDesignColours[3].key, "", Colours, {Reports, 9}, ColourOr(3)},
    {"ReportAlign", "", Alignment, {General, 2}, OneOf(kAlignments, "C")},
};

std::string_view StoredOn(const OptionSetting& setting) {
    return setting.control.choices.back().stored;
}

bool IsChoice(const SettingControl& control, std::string_view text) {
    return std::ranges::any_of(control.choices,
                               [&](const SettingChoice& choice) { return choice.stored == text; });
}

std::string Shown(const Application& application, const OptionSetting& setting) {
    const SettingControl& control = setting.control;
    std::string text = application.settings.Read(setting.key);
    if (text.empty()) {
        text = control.kind == Folder ? application.folder.string() : "";
        text += control.unset;
    }
    const bool byChoice = control.kind == Options || control.kind == Switch;
    if (byChoice && !IsChoice(control, text)) return std::string(control.otherwise);
    if (control.kind == Colour && !ColourOfDigits(text)) return std::string(control.unset);
    return text;
}

const std::string& ValueOf(const OptionsValues& values, std::string_view key) {
    const auto found = values.find(key);
    if (found == values.end()) throw std::out_of_range("no value of the option " + std::string(key));
    return found->second;
}

bool IsWritten(const OptionSetting& setting, const OptionsValues& values) {
    const std::string_view master = setting.extras.onlyWhen;
    return master.empty() || ValueOf(values, master) == StoredOn(SettingOf(master));
}

}  // namespace

std::span<const OptionSetting> AllSettings() {
    return kSettings;
}

const OptionSetting& SettingOf(std::string_view key) {
    const auto* found = std::ranges::find(kSettings, key, &OptionSetting::key);
    if (found == std::end(kSettings)) throw std::out_of_range("no option of the key " + std::string(key));
    return *found;
}

OptionsValues LoadOptions(const Application& application) {
    OptionsValues values;
    for (const OptionSetting& setting : kSettings) values.emplace(setting.key, Shown(application, setting));
    for (const CommandFile& file : kCommandFiles) {
        values.emplace(file.name, ReadCommandFile(application, file));
    }
    return values;
}

void WriteSettings(const SettingsStore& settings, const OptionsValues& values, SaveStep step) {
    std::vector<OptionSetting> written;
    std::ranges::copy_if(kSettings, std::back_inserter(written),
                         [&](const OptionSetting& setting) { return setting.saved.step == step; });
    std::ranges::sort(written, {}, [](const OptionSetting& setting) { return setting.saved.place; });
    for (const OptionSetting& setting : written) {
        const std::string& value = ValueOf(values, setting.key);
        if (IsWritten(setting, values)) settings.Write(setting.key, value);
    }
}

}  // namespace tallix
