#pragma once

#include "reporting/html_page.h"

namespace tallix {

/// The shape in the four colours of the settings: a banner, shaded rows, a bar for the
/// totals.
class ColouredPage : public HtmlPage {
public:
    ColouredPage(const std::filesystem::path& file, const PageDescription& description);

    void WriteHead() override;
    void WriteColumnHeads(const std::vector<std::string_view>& labels) override;
    void WriteRow(const std::vector<std::string_view>& cells) override;
    void SkipRow() override { shaded_ = !shaded_; }

private:
    const ReportColours& Colours() const { return Description().settings.colours; }
    void WriteBanner();
    void WriteTotalLine(const std::string& text) override;

    const std::string shadedOpening_;
    std::string repeatedHeads_;
    SheetCounter sheets_;
    bool shaded_ = false;  ///< the next row
};

}  // namespace tallix
