// The report file: one text file in one of four shapes, chosen once per run. Comma
// text is for applications; the plain, the coloured and the bare page are HTML for the
// screen and the printer.
//
// The shapes are a contract with whoever reads the files: every piece is fixed to the
// letter, tags that are never closed included.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reporting/ansi_file.h"
#include "reporting/report_settings.h"
#include "session/application.h"

namespace tallix {

/// A bare page is the plain one without a print style and repeated heads.
enum class PageShape { CommaText, Plain, Coloured, Bare };

enum class TimePrecision { Minutes, Seconds };

/// The line of comma text that says when the page was made.
struct DateLine {
    std::string_view opening = "Generated On:";
    TimePrecision precision = TimePrecision::Minutes;
};

/// What the page says of the run as a whole.
struct PageDescription {
    const ReportSettings& settings;
    DateLine dateLine{};
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

class PageWriter {
public:
    virtual ~PageWriter() = default;
    PageWriter(const PageWriter&) = delete;
    PageWriter& operator=(const PageWriter&) = delete;

    // In this order.
    virtual void WriteHead() = 0;
    virtual void WriteTitle(std::string_view title) = 0;
    virtual void WriteColumnHeads(const std::vector<std::string_view>& labels) = 0;
    virtual void WriteRow(const std::vector<std::string_view>& cells) = 0;
    virtual void WriteTotals(const PageTotals& totals) = 0;
    virtual void WriteEnd(std::string_view graph) = 0;
    void Close() { file_.Close(); }

    /// Between two rows: the next one takes the background of the one after it.
    virtual void SkipRow() {}

protected:
    PageWriter(const std::filesystem::path& file, const PageDescription& description)
        : description_(description), file_(file) {}

    const PageDescription& Description() const { return description_; }
    AnsiFile& File() { return file_; }

private:
    const PageDescription& description_;
    AnsiFile file_;
};

/// A writer for a shape. Replaces `file`. `description` must outlive the writer.
std::unique_ptr<PageWriter> MakePageWriter(PageShape shape, const std::filesystem::path& file,
                                           const PageDescription& description);

/// The line of the totals: the records, and the cost where it is shown.
std::string TextOf(const PageTotals& totals);

}  // namespace tallix
