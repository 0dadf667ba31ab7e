#include "startup/update_check.h"

#include <fstream>
#include <optional>
#include <system_error>

#include "compat/ini_file.h"
#include "failures/attempt.h"
#include "platform/http_get.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr char kAddressFile[] = "Site.ini";
constexpr std::string_view kAddressSection = "Web";
constexpr std::string_view kScheme = "HTTP://";
constexpr std::string_view kAnyScheme = "://";
constexpr std::string_view kUnknownManifest = "www.quillmere.invalid/TALLIX_UP.ini";
constexpr std::string_view kUnknownSite = "www.quillmere.invalid/";

constexpr std::string_view kOn = "1";

constexpr UpdateNotice kDisabled = {"Updates have been disabled by your administrator", {0, 0, 230}};
constexpr UpdateNotice kUpToDate = {"Your version of Tallix is up to date!", {0, 116, 5}};
constexpr UpdateNotice kNewer = {
    "A newer version of Tallix is available! Click here to get it.", {229, 9, 9}, true};

std::string ReadAddress(const std::filesystem::path& applicationFolder, std::string_view key,
                        std::string_view unknown) {
    std::string address = ReadIniKey(kAddressSection, key, applicationFolder / kAddressFile);
    if (address.empty()) address = unknown;
    if (EqualNoCase(Left(address, kScheme.size()), kScheme)) address.erase(0, kScheme.size());
    return address.find(kAnyScheme) == std::string::npos ? std::string(kScheme) + address : address;
}

/// Empty for a direct connection, which an incomplete proxy gives as well.
std::string Proxy(const SettingsStore& settings) {
    const std::string address = settings.Read("ProxyIP");
    const std::string port = settings.Read("ProxyPort");
    const bool used = settings.Read("UseProxy") == kOn && !address.empty() && !port.empty();
    return used ? address + ":" + port : std::string();
}

bool WriteFile(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream stream(file, std::ios::binary);
    stream << bytes;
    stream.close();
    return stream.good();
}

std::optional<std::string> ReadFirstLine(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string line;
    if (!std::getline(stream, line)) return {};
    return line.substr(0, line.find('\r'));
}

/// The manifest's first line, on its way through the copy in the application folder.
std::optional<std::string> FetchFirstLine(const Application& application, const std::filesystem::path& copy) {
    HttpRequest request;
    request.address = ReadAddress(application.folder, "Manifest", kUnknownManifest);
    request.proxy = Proxy(application.settings);
    const std::optional<std::string> manifest = HttpGet(request);
    if (!manifest || !WriteFile(copy, *manifest)) return {};
    return ReadFirstLine(copy);
}

/// The one-based place of the first point from `start` on; 0 where there is none.
std::size_t PointFrom(std::string_view text, std::size_t start) {
    return text.find('.', start - 1) + 1;
}

}  // namespace

bool NamesNewerVersion(std::string_view line, const Version& own) {
    const std::size_t first = PointFrom(line, 1);
    const std::size_t second = PointFrom(line, 3);
    const int major = ToInteger32(Mid(line, 1, first));
    const int minor = ToInteger32(Mid(line, 3, second));
    const int revision = ToInteger32(Mid(line, 5, second));
    return major != 0 && (major > own.major || minor > own.minor || revision > own.revision);
}

UpdateNotice CheckForUpdate(const Application& application, NoUpdatesSetting setting) {
    if (setting == NoUpdatesSetting::Heeded && application.settings.Read("NoUpdates") == kOn)
        return kDisabled;
    const std::filesystem::path copy = application.folder / kManifestCopy;
    const std::optional<std::string> line = FetchFirstLine(application, copy);
    bool newer = false;
    const bool compared = line && Attempt([&] { newer = NamesNewerVersion(*line, application.version); });
    if (!compared) return kUpToDate;
    std::error_code failure;
    std::filesystem::remove(copy, failure);
    return newer && !failure ? kNewer : kUpToDate;
}

std::string MakerSite(const std::filesystem::path& applicationFolder) {
    return ReadAddress(applicationFolder, "Site", kUnknownSite);
}

}  // namespace tallix
