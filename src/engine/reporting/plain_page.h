// The two shapes in black and white: a table with borders below the company's logo.
#pragma once

#include "reporting/html_page.h"

namespace tallix {

class PlainPage : public HtmlPage {
public:
    PlainPage(const std::filesystem::path& file, const PageDescription& description)
        : HtmlPage(file, description) {}

    void WriteHead() override;
    void WriteColumnHeads(const std::vector<std::string_view>& labels) override;
    void WriteRow(const std::vector<std::string_view>& cells) override;

protected:
    void WriteHeadTable();
    void WriteTotalLine(const std::string& text) override;

private:
    SheetCounter sheets_;
};

/// Of custom reports: no print style, and a row opening on a line of its own.
class BarePage : public PlainPage {
public:
    BarePage(const std::filesystem::path& file, const PageDescription& description)
        : PlainPage(file, description), opening_(RowOpening() + "\r\n") {}

    void WriteHead() override;
    void WriteRow(const std::vector<std::string_view>& cells) override { WriteCells(opening_, cells); }

private:
    const std::string opening_;
};

}  // namespace tallix
