#pragma once

#include "reporting/page_writer.h"

namespace tallix {

/// Lines of values, each with a comma after it.
class CommaPage : public PageWriter {
public:
    CommaPage(const std::filesystem::path& file, const PageDescription& description)
        : PageWriter(file, description) {}

    void WriteHead() override;
    void WriteTitle(std::string_view title) override { File().Line(title); }
    void WriteColumnHeads(const std::vector<std::string_view>& labels) override;
    void WriteRow(const std::vector<std::string_view>& cells) override;
    void WriteTotals(const PageTotals& totals) override { File().Lines({"", TextOf(totals)}); }
    void WriteEnd(std::string_view) override {}

private:
    void PutTogether(const std::vector<std::string_view>& values);

    std::string row_;  ///< the row being put together
};

}  // namespace tallix
