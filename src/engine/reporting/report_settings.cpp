#include "reporting/report_settings.h"

#include <fmt/format.h>

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

constexpr std::string_view kOn = "1";
constexpr std::size_t kDigitsOfAComponent = 3;

NumberTable NumberTableOf(const std::string& providers) {
    if (providers == "1") return NumberTable::Areas;
    return providers == "2" ? NumberTable::Providers : NumberTable::Unset;
}

std::string AlignmentOf(const std::string& setting) {
    if (setting == "L") return "Left";
    return setting == "R" ? "Right" : "Center";
}

std::string ReadColour(const SettingsStore& settings, std::string_view name) {
    std::string colour;
    Attempt([&] { colour = HtmlColour(settings.Read(name)); });
    return colour;
}

ReportColours ReadColours(const SettingsStore& settings) {
    return {.banner = ReadColour(settings, "rptTC"),
            .heads = ReadColour(settings, "rptTHC"),
            .shading = ReadColour(settings, "rptTDC"),
            .totalBar = ReadColour(settings, "rptTBC")};
}

}  // namespace

std::string HtmlColour(const std::string& nineDigits) {
    std::string colour = "#";
    for (std::size_t component = 0; component < 3; ++component) {
        const auto digits = Mid(nineDigits, component * kDigitsOfAComponent + 1, kDigitsOfAComponent);
        colour += fmt::format("{:02X}", ToInteger16(digits));
    }
    return colour;
}

ReportSettings ReadReportSettings(const SettingsStore& settings) {
    ReportSettings read;
    read.numbers = NumberTableOf(settings.Read("Providers"));
    read.coloured = settings.Read("V1Reports") == kOn;
    if (read.coloured) read.colours = ReadColours(settings);
    read.alignment = AlignmentOf(settings.Read("ReportAlign"));
    read.areaCode = settings.Read("AreaCode") == kOn;
    const std::string costCompute = settings.Read("CostCompute");
    read.storedCosts = costCompute.empty() || costCompute == kOn;
    read.billing = settings.Read("Billing");
    read.timeOpen = settings.Read("TimeOpen");
    read.timeClosed = settings.Read("TimeClosed");
    return read;
}

}  // namespace tallix
