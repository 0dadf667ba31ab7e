#include "settings/settings_store.h"

#include <algorithm>
#include <array>
#include <utility>

#include "compat/hive_file.h"
#include "compat/ini_file.h"
#include "compat/section_text.h"
#include "failures/attempt.h"
#include "platform/paths.h"
#include "platform/whole_file.h"
#include "text/code_page.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kMachineRoot = "HKLM";
constexpr std::array<std::string_view, 6> kHiveRoots = {"HKCU", kMachineRoot, "HKU", "HKDD", "HKCC", "HKCR"};
constexpr std::string_view kTextType = "S";
constexpr std::string_view kHiveEnding = ".reg";
constexpr mode_t kModeOfNewHive = 0640;
constexpr std::size_t kBooleanSize = 2;

bool IsText(std::string_view type) {
    return EqualNoCase(type, kTextType);
}

std::string BooleanText(bool value) {
    return value ? "True" : "False";
}

/// The whole number that a text begins with decides; a text that begins with none is 0.
bool IsNonZeroNumber(std::string_view text) {
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    const std::size_t digitsEnd = std::min(text.find_first_not_of("0123456789"), text.size());
    return text.substr(0, digitsEnd).find_first_not_of('0') != std::string_view::npos;
}

void ReadFromIniFile(const fs::path& file, std::string_view section, std::string_view key,
                     std::string_view type, std::string& result) {
    const std::optional<std::string> found = IniFile(file).Find(section, key);
    if (IsText(type)) {
        const std::size_t bufferSize = Len(result);
        result = Left(found.value_or(result), bufferSize == 0 ? 0 : bufferSize - 1);
    } else if (found && !found->empty()) {
        result = BooleanText(IsNonZeroNumber(*found));
    }
}

void ReadFromHive(const fs::path& file, std::string_view path, std::string_view name, std::string_view type,
                  std::string& result) {
    const std::optional<std::string> hive = ReadWholeFile(file);
    if (!hive) return;
    const std::optional<HiveValue> value = FindHiveValue(*hive, path, name);
    if (!value) return;
    const bool isBinary = value->kind == HiveValue::Kind::Binary;
    if (IsText(type)) {
        // The last byte of any value counts as the zero after a text, which a text in
        // the hive is written without.
        result = isBinary ? DecodeLine(value->data.substr(0, value->data.size() - 1)) : value->data;
    } else if (isBinary && value->data.size() == kBooleanSize) {
        result = BooleanText(value->data != std::string(kBooleanSize, '\0'));
    }
}

/// Nothing when the value is not a Boolean although its type says so.
std::optional<HiveValue> MakeHiveValue(std::string_view type, std::string_view value) {
    if (IsText(type)) return HiveValue{HiveValue::Kind::Text, DecodeLine(value)};
    bool truth = false;
    if (!Attempt([&] { truth = ToBoolean(value); })) return {};
    return HiveValue{HiveValue::Kind::Binary, std::string{truth ? '\1' : '\0', '\0'}};
}

void ShowExclamation(Prompts& prompts, const char* title, const char* text) {
    prompts.Show({title, text, MessageIcon::Exclamation, MessageButtons::Ok});
}

}  // namespace

SettingsStore::SettingsStore(fs::path machineFolder, fs::path userFolder, Prompts& prompts)
    : machineFolder_(std::move(machineFolder)), userFolder_(std::move(userFolder)), prompts_(prompts) {}

SettingsStore::RootKind SettingsStore::fTopKey(std::string_view root) const {
    const bool isHive = std::any_of(kHiveRoots.begin(), kHiveRoots.end(),
                                    [root](std::string_view name) { return EqualNoCase(name, root); });
    if (isHive) return RootKind::Hive;
    std::error_code failure;
    if (fs::is_regular_file(ToNativePath(root), failure)) return RootKind::IniFile;
    ShowExclamation(prompts_, "fTopKey", "Unable to decode registry key or find .ini file.");
    return RootKind::Unknown;
}

fs::path SettingsStore::HiveFile(std::string_view root) const {
    const fs::path& folder = EqualNoCase(root, kMachineRoot) ? machineFolder_ : userFolder_;
    return folder / UpperCase(root).append(kHiveEnding);
}

void SettingsStore::fReadValue(std::string_view root, std::string_view path, std::string_view name,
                               std::string_view type, std::string_view defaultText,
                               std::string& result) const {
    result = std::string(defaultText);
    switch (fTopKey(root)) {
        case RootKind::Hive:
            return ReadFromHive(HiveFile(root), path, name, type, result);
        case RootKind::IniFile:
            return ReadFromIniFile(ToNativePath(root), path, name, type, result);
        case RootKind::Unknown:
            return;
    }
}

bool SettingsStore::WriteHive(std::string_view root, std::string_view path, std::string_view name,
                              std::string_view type, std::string_view value) const {
    const std::optional<HiveValue> hiveValue = MakeHiveValue(type, value);
    if (!hiveValue || HasLineBreak(path)) return false;
    const fs::path file = HiveFile(root);
    std::error_code failure;
    fs::create_directories(file.parent_path(), failure);  // the write reports a missing folder
    return RewriteWholeFile(file, kModeOfNewHive, [&](const std::string& hive) {
        return WithHiveValue(hive, path, name, *hiveValue);
    });
}

void SettingsStore::fWriteValue(std::string_view root, std::string_view path, std::string_view name,
                                std::string_view type, std::string_view value) const {
    const RootKind kind = fTopKey(root);
    const bool written =
        (kind == RootKind::Hive && WriteHive(root, path, name, type, value)) ||
        (kind == RootKind::IniFile && IsText(type) && WriteIniKey(path, name, value, ToNativePath(root)));
    if (!written) ShowExclamation(prompts_, "fWriteValue", "Unable to write registry or .ini file value.");
}

std::string SettingsStore::Read(std::string_view name) const {
    std::string text;
    fReadValue(kMachineRoot, kApplicationKey, name, kTextType, "", text);
    return text;
}

void SettingsStore::Write(std::string_view name, std::string_view value) const {
    fWriteValue(kMachineRoot, kApplicationKey, name, kTextType, value);
}

}  // namespace tallix
