// What the HTML shapes share.
#pragma once

#include "reporting/page_writer.h"

namespace tallix {

/// The lines of the HTML head that every page of a report begins with, cover and back
/// pages included.
void WriteHtmlHead(AnsiFile& file, std::string_view reportName);

/// The table that holds the head of a page.
inline constexpr std::string_view kHeadTable =
    R"(<TABLE width="100%" border="0" valign="middle" cellpadding="5">)";

/// Counts the rows of printed sheets, so that each sheet gets its column heads. The first
/// sheet has the head of the page too and takes fewer rows.
class SheetCounter {
public:
    /// Counts a row. Returns whether a new sheet begins with it.
    bool NextRow();

private:
    int rows_ = 0;
    bool firstSheet_ = true;
};

class HtmlPage : public PageWriter {
public:
    void WriteTitle(std::string_view title) override;
    void WriteTotals(const PageTotals& totals) override;
    void WriteEnd(std::string_view graph) override;

protected:
    HtmlPage(const std::filesystem::path& file, const PageDescription& description);

    /// The site's name and address in a cell of their own, and the end of the head's table.
    /// What the site does not have leaves no line.
    void WriteAddress();

    /// The row opening with the alignment of the settings.
    const std::string& RowOpening() const { return rowOpening_; }
    void WriteCells(std::string_view opening, const std::vector<std::string_view>& cells);

    virtual void WriteTotalLine(const std::string& text) = 0;

private:
    const std::string rowOpening_;
    std::string row_;  ///< the row being put together
};

}  // namespace tallix
