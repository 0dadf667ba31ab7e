#include "administration/importer_settings.h"

#include "compat/ini_file.h"
#include "platform/paths.h"
#include "session/access_log.h"

namespace tallix {

namespace {

constexpr std::string_view kEnabledSetting = "Importer";
constexpr std::string_view kCsvSetting = "CollectDB";
constexpr std::string_view kSection = "Values";
constexpr std::string_view kOn = "1";
constexpr std::string_view kOff = "0";

/// The folder of the Importer is beside the program's.
std::filesystem::path ValuesFile(const Application& application) {
    return FindIgnoringCase(application.folder.parent_path() / "Importer" / "CSV.ini");
}

bool IsOn(const SettingsStore& settings, std::string_view name) {
    const std::string value = settings.Read(name);
    return !value.empty() && value != kOff;
}

std::string OrOff(const std::string& place) {
    return place.empty() ? std::string(kOff) : place;
}

}  // namespace

ImporterSettings LoadImporterSettings(const Application& application) {
    ImporterSettings importer;
    importer.enabled = IsOn(application.settings, kEnabledSetting);
    importer.createsCsv = IsOn(application.settings, kCsvSetting);
    const IniFile file(ValuesFile(application));
    for (std::size_t i = 0; i < kImportedValues.size(); ++i)
        importer.places.at(i) = OrOff(file.Read(kSection, kImportedValues.at(i).key));
    return importer;
}

void SaveImporterSettings(Application& application, const ImporterSettings& importer) {
    const std::filesystem::path file = ValuesFile(application);
    for (std::size_t i = 0; i < kImportedValues.size(); ++i)
        WriteIniKey(kSection, kImportedValues.at(i).key, OrOff(importer.places.at(i)), file);
    application.settings.Write(kEnabledSetting, importer.enabled ? kOn : kOff);
    application.settings.Write(kCsvSetting, importer.createsCsv ? kOn : kOff);
    LogOnItsOwn(application.session, application.clock, "Saved CSV Settings");
}

}  // namespace tallix
