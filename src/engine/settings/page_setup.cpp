#include "settings/page_setup.h"

#include <vector>

namespace tallix {
namespace {

constexpr std::string_view kRoot = "HKCU";
constexpr std::string_view kPath = "Software\\Microsoft\\Internet Explorer\\PageSetup";
constexpr std::string_view kHeader = "header";
constexpr std::string_view kFooter = "footer";
constexpr std::string_view kText = "S";
constexpr char kSign = '&';

}  // namespace

PageSetup ReadPageSetup(const SettingsStore& settings) {
    PageSetup setup;
    settings.fReadValue(kRoot, kPath, kFooter, kText, "", setup.footer);
    settings.fReadValue(kRoot, kPath, kHeader, kText, "", setup.header);
    return setup;
}

void WritePageSetup(const SettingsStore& settings, const PageSetup& setup) {
    settings.fWriteValue(kRoot, kPath, kFooter, kText, setup.footer);
    settings.fWriteValue(kRoot, kPath, kHeader, kText, setup.header);
}

ReportPageSetup::ReportPageSetup(const SettingsStore& settings)
    : settings_(settings), kept_(ReadPageSetup(settings)) {
    WritePageSetup(settings_, {.header = "", .footer = std::string(kReportFooter)});
}

ReportPageSetup::~ReportPageSetup() {
    WritePageSetup(settings_, kept_);
}

PageLine ExpandPageLine(std::string_view coded, int page, int pages) {
    std::vector<std::string> parts(1);
    for (std::size_t i = 0; i < coded.size(); ++i) {
        if (coded[i] != kSign || i + 1 == coded.size()) {
            parts.back() += coded[i];
            continue;
        }
        const char code = coded[++i];
        if (code == 'b') parts.emplace_back();
        if (code == 'p') parts.back() += std::to_string(page);
        if (code == 'P') parts.back() += std::to_string(pages);
        if (code == kSign) parts.back() += kSign;
    }
    if (parts.size() == 1) return {parts[0], "", ""};
    if (parts.size() == 2) return {parts[0], "", parts[1]};
    return {parts[0], parts[1], parts[2]};
}

}  // namespace tallix
