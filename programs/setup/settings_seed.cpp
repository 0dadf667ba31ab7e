#include "setup/settings_seed.h"

#include <fmt/format.h>

#include <ostream>
#include <string_view>

#include "platform/paths.h"
#include "setup/setup_error.h"

namespace tallix {
namespace {

constexpr std::string_view kDefaultType = "1";
constexpr std::string_view kDefaultUser = "Tallix";
constexpr std::string_view kDefaultPassword = "norvadat";
constexpr std::string_view kDefaultFile = "tallix.db";
constexpr std::string_view kFilePrefix = "sqlite:";

enum class Shown { Yes, No };

struct Setting {
    std::string_view name;
    std::string_view value;
    Shown shown = Shown::Yes;
};

constexpr Setting kColours[] = {
    {"rptTC", "002001118"},
    {"rptTHC", "180003000"},
    {"rptTDC", "254254170"},
    {"rptTBC", "162196091"},
};

std::string FirstOf(std::string_view given, const std::string& stored, std::string_view fallback) {
    if (!given.empty()) return std::string(given);
    return stored.empty() ? std::string(fallback) : stored;
}

std::string WithAbsoluteFile(const std::string& address) {
    if (!address.starts_with(kFilePrefix) || address == kFilePrefix) return address;
    const std::filesystem::path file = std::filesystem::absolute(address.substr(kFilePrefix.size()));
    return std::string(kFilePrefix) + file.lexically_normal().string();
}

void Seed(const Setting& setting, const SettingsStore& settings, std::ostream& out) {
    const std::string stored = settings.Read(setting.name);
    if (stored == setting.value) {
        out << fmt::format("Setting {}: there already\n", setting.name);
    } else if (!stored.empty()) {
        out << fmt::format("Setting {}: there already with another value, left as it is\n", setting.name);
    } else {
        settings.Write(setting.name, setting.value);
        if (settings.Read(setting.name) != setting.value) {
            throw SetupError(fmt::format("setting {} cannot be written in {}", setting.name,
                                         MachineSettingsFolder().string()));
        }
        const bool shown = setting.shown == Shown::Yes;
        out << fmt::format("Setting {}: stored{}{}\n", setting.name, shown ? " as " : "",
                           shown ? setting.value : std::string_view());
    }
}

}  // namespace

DatabaseChoice ChooseDatabase(const SetupOptions& options, const SettingsStore& settings,
                              const std::filesystem::path& applicationFolder) {
    const std::string file = std::string(kFilePrefix) + (applicationFolder / kDefaultFile).string();
    return {FirstOf(options.type, settings.Read("DBType"), kDefaultType),
            WithAbsoluteFile(FirstOf(options.address, settings.Read("DBIP"), file)),
            FirstOf(options.user, settings.Read("SQLUser"), kDefaultUser),
            FirstOf(options.password, settings.Read("SQLPass"), kDefaultPassword)};
}

void SeedSettings(const DatabaseChoice& choice, const SettingsStore& settings, std::ostream& out) {
    const Setting database[] = {{"DBType", choice.type},
                                {"DBIP", choice.address},
                                {"SQLUser", choice.user},
                                {"SQLPass", choice.password, Shown::No}};
    for (const Setting& setting : database) Seed(setting, settings, out);
    for (const Setting& setting : kColours) Seed(setting, settings, out);
}

}  // namespace tallix
