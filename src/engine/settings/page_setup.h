// The header and footer that the browser control prints on each page: two texts in the
// settings of the person ("HKCU"), shared with every program that prints pages there.
// A report sets its own for the time of a call and puts the person's back.
#pragma once

#include <string>
#include <string_view>

#include "settings/settings_store.h"

namespace tallix {

struct PageSetup {
    std::string header;
    std::string footer;
};

/// What a report prints, without a header: "Page 1 of 3".
inline constexpr std::string_view kReportFooter = "&bPage &p of &P";

PageSetup ReadPageSetup(const SettingsStore& settings);
void WritePageSetup(const SettingsStore& settings, const PageSetup& setup);

/// Has the settings hold the page setup of reports while it lives.
class ReportPageSetup {
public:
    explicit ReportPageSetup(const SettingsStore& settings);
    ~ReportPageSetup();
    ReportPageSetup(const ReportPageSetup&) = delete;
    ReportPageSetup& operator=(const ReportPageSetup&) = delete;

private:
    const SettingsStore& settings_;
    PageSetup kept_;
};

/// A header or footer as one page shows it.
struct PageLine {
    std::string left;
    std::string centre;
    std::string right;
};

/// Reads the codes of a header or footer: "&p" the number of the page, "&P" that of all
/// pages, "&&" the sign itself. Text before the first "&b" goes to the left;
/// after one "&b" to the right; after two, first to the centre and then to the right.
/// Other codes show nothing.
PageLine ExpandPageLine(std::string_view coded, int page, int pages);

}  // namespace tallix
