// The report file: one text file in one of four shapes, chosen once per run. Comma
// text is for applications; the plain, the coloured and the bare page are HTML for the
// screen and the printer.
//
// The shapes are a contract with whoever reads the files: every piece stands to the
// letter, tags that are never closed included.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reporting/ansi_file.h"
#include "reporting/report_settings.h"
#include "reporting/run_description.h"
#include "reporting/site.h"
#include "session/application.h"

namespace tallix {

/// A bare page is the plain one without a print style, repeated heads and settings.
enum class PageShape { CommaText, Plain, Coloured, Bare };

/// What the page says of the run as a whole.
struct PageDescription {
    PageShape shape = PageShape::Plain;
    /// The layout of the settings; comma text takes its column heads from it as well.
    const ReportSettings& settings;
    const RunRules& rules;
    std::string reportName;
    std::string applicationFolder;  ///< with the pictures of the coloured layout
    std::string docsLocation;       ///< with the company's logo
    Version version;
    DateTime generated;
    std::optional<std::string> siteName;
    std::vector<std::string> addressLines;
};

struct PageTotals {
    std::int32_t records = 0;
    bool showsCost = false;
    std::string cost{};  ///< currency and amount
};

class Page {
public:
    /// Replaces `file`. `description` must outlive the page.
    Page(const std::filesystem::path& file, const PageDescription& description);

    // In this order.
    void WriteHead();
    void WriteTitle(std::string_view title);
    void WriteColumnHeads(const std::vector<std::string_view>& labels);
    void WriteRow(const std::vector<std::string_view>& cells);
    void WriteTotals(const PageTotals& totals);
    void WriteEnd(std::string_view graph);

    /// The next row takes the other background.
    void FlipShading() { shaded_ = !shaded_; }

    void Close() { file_.Close(); }

private:
    void WriteCommaHead();
    void WriteAddress();
    void WriteBareHead();
    void WritePlainHead();
    void WriteColouredHead();
    void WriteBanner();
    void WriteRepeatedHeads();
    void WriteCommaRow(const std::vector<std::string_view>& cells);

    const PageDescription& description_;
    AnsiFile file_;
    std::string repeatedHeads_;
    std::string rowOpening_;
    std::string shadedRowOpening_;
    std::string row_;  ///< the row being put together
    bool shaded_ = false;
    int rowsOnSheet_ = 0;
    bool firstSheet_ = true;
};

/// The lines of the HTML head that every page of a report begins with, cover and back
/// pages included.
void WriteHtmlHead(AnsiFile& file, std::string_view reportName);

}  // namespace tallix
