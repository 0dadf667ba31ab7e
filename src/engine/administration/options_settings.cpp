#include "administration/options_settings.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "administration/report_design.h"
#include "platform/whole_file.h"
#include "text/code_page.h"

namespace tallix {
namespace {

constexpr char kCollectorFolder[] = "Collector";
constexpr std::string_view kLineEnd = "\r\n";
constexpr mode_t kModeOfNewFile = 0644;

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

constexpr OptionSetting List(std::string_view key, std::string_view label,
                             std::span<const SettingChoice> choices, std::string_view unset = "") {
    return {.key = key, .label = label, .kind = SettingKind::List, .unset = unset, .choices = choices};
}

/// A switch that an absent value leaves off and that any text but "0" turns on.
constexpr OptionSetting Switch(std::string_view key, std::string_view label) {
    return {.key = key,
            .label = label,
            .kind = SettingKind::Switch,
            .unset = "0",
            .otherwise = "1",
            .choices = kOffOn};
}

constexpr OptionSetting Options(std::string_view key, std::span<const SettingChoice> choices,
                                std::string_view usual) {
    return {.key = key, .kind = SettingKind::Options, .unset = usual, .otherwise = usual, .choices = choices};
}

constexpr OptionSetting ColourOf(const DesignColour& colour) {
    return {.key = colour.key, .kind = SettingKind::Colour, .unset = colour.usual};
}

constexpr std::array kSettings = {
    OptionSetting{"CommMethod", "Enable Comm port collection", SettingKind::Switch, "1", "1",
                  kNetworkOrSerial},
    List("SwitchComm", "Computer Comm Port:", kCommPorts),
    List("SwitchBaud", "PBX Baud Rate:", kBaudRates),
    List("SwitchParity", "PBX Parity:", kParities),
    List("SwitchBits", "PBX Bits:", kBits),
    List("SwitchStop", "PBX Stop Bit:", kStopBits),
    Switch("ListenFeed", "Set Collector to Listen"),
    OptionSetting{.key = "ListenPort", .label = "Listen Port:", .unset = "1752", .onlyWhen = "ListenFeed"},
    Switch("UseProxy", "Use proxy server to connect to the Internet"),
    OptionSetting{.key = "ProxyIP", .label = "Proxy Server:", .onlyWhen = "UseProxy"},
    OptionSetting{.key = "ProxyPort", .label = "Proxy Port:", .onlyWhen = "UseProxy"},
    OptionSetting{.key = "SMTPServer", .label = "SMTP Server:"},
    OptionSetting{.key = "SMTPPort", .label = "SMTP Port:"},
    OptionSetting{.key = "SMTPUser", .label = "SMTP User:"},
    OptionSetting{.key = "SMTPPass", .label = "SMTP Pass:", .kind = SettingKind::Password},
    OptionSetting{.key = "SMTPEmail", .label = "Server Email:"},
    OptionSetting{"SMTPAuth", "SMTP Server Requires Authentication", SettingKind::Switch, "1", "1", kOffOn},
    Switch("SMTPSSL", "SMTP Requires SSL"),
    Switch("DebugLogging", "Enabled?"),
    OptionSetting{.key = "TimeOpen", .label = "Open Time:", .unset = "08:30"},
    OptionSetting{.key = "TimeClosed", .label = "Closed Time:", .unset = "17:30"},
    Switch("LostCalls", "Include 'lost' calls in call records"),
    Switch("V1Reports", "Use New Style Reports"),
    OptionSetting{"CostCompute", "Compute call costs per report", SettingKind::Switch, "1", "0", kOffOn},
    Switch("AreaCode", "Show Area code in report"),
    Options("Providers", kNumberNames, "2"),
    Options("Lang", kLanguages, "1033"),
    List("Currency", "Currency:", kCurrencies, "£"),
    OptionSetting{.key = "ReportsLocation", .label = "Location:"},
    OptionSetting{.key = "DocsLocation", .label = "Location:"},
    Options("ReportAlign", kAlignments, "C"),
    ColourOf(kDesignColours[0]),
    ColourOf(kDesignColours[1]),
    ColourOf(kDesignColours[2]),
    ColourOf(kDesignColours[3]),
};

bool IsChoice(const OptionSetting& setting, std::string_view text) {
    return std::any_of(setting.choices.begin(), setting.choices.end(),
                       [&](const SettingChoice& choice) { return choice.stored == text; });
}

std::string Shown(const OptionSetting& setting, const std::string& stored) {
    std::string text = stored.empty() ? std::string(setting.unset) : stored;
    const bool byChoice = setting.kind == SettingKind::Options || setting.kind == SettingKind::Switch;
    if (byChoice && !IsChoice(setting, text)) return std::string(setting.otherwise);
    if (setting.kind == SettingKind::Colour && !ColourOfDigits(text)) return std::string(setting.unset);
    return text;
}

/// The folder of the Collector lies beside the program's.
std::filesystem::path CommandFilePath(const Application& application, std::string_view name) {
    return application.folder.parent_path() / kCollectorFolder / name;
}

/// The lines of a file joined by line ends, with none behind the last.
std::string ReadCommandFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string text;
    bool first = true;
    for (std::string line; std::getline(stream, line); first = false) {
        if (line.ends_with('\r')) line.pop_back();
        if (!first) text += kLineEnd;
        text += DecodeLine(line);
    }
    return text;
}

}  // namespace

const OptionSetting& SettingOf(std::string_view key) {
    const auto found = std::find_if(kSettings.begin(), kSettings.end(),
                                    [&](const OptionSetting& setting) { return setting.key == key; });
    if (found == kSettings.end()) throw std::out_of_range("no option of the key " + std::string(key));
    return *found;
}

OptionsValues LoadOptions(const Application& application) {
    OptionsValues values;
    for (const OptionSetting& setting : kSettings) {
        values.emplace(setting.key, Shown(setting, application.settings.Read(setting.key)));
    }
    const std::string folder = application.folder.string();
    if (values["ReportsLocation"].empty()) values["ReportsLocation"] = folder;
    if (values["DocsLocation"].empty()) values["DocsLocation"] = folder + "\\Company Docs";
    for (const CommandFile& file : kCommandFiles) {
        values.emplace(file.name, ReadCommandFile(CommandFilePath(application, file.name)));
    }
    return values;
}

bool IsOn(const OptionsValues& values, std::string_view key) {
    return values.find(key)->second == SettingOf(key).choices.back().stored;
}

void WriteSettings(const SettingsStore& settings, const OptionsValues& values,
                   std::span<const std::string_view> keys) {
    for (const std::string_view key : keys) {
        const std::string_view only = SettingOf(key).onlyWhen;
        if (only.empty() || IsOn(values, only)) settings.Write(key, values.find(key)->second);
    }
}

void WriteCommandFile(const Application& application, const OptionsValues& values, std::string_view name) {
    const std::filesystem::path file = CommandFilePath(application, name);
    const auto text = [&](const std::string&) { return ToAnsi(values.find(name)->second).append(kLineEnd); };
    if (RewriteWholeFile(file, kModeOfNewFile, text)) return;
    throw std::runtime_error("The file " + file.string() + " cannot be written");
}

}  // namespace tallix
