#include "reporting/page_writer.h"

#include <fmt/format.h>

#include "reporting/coloured_page.h"
#include "reporting/comma_page.h"
#include "reporting/plain_page.h"

namespace tallix {

std::unique_ptr<PageWriter> MakePageWriter(PageShape shape, const std::filesystem::path& file,
                                           const PageDescription& description) {
    switch (shape) {
        case PageShape::CommaText:
            return std::make_unique<CommaPage>(file, description);
        case PageShape::Coloured:
            return std::make_unique<ColouredPage>(file, description);
        case PageShape::Bare:
            return std::make_unique<BarePage>(file, description);
        case PageShape::Plain:
            break;
    }
    return std::make_unique<PlainPage>(file, description);
}

std::string TextOf(const PageTotals& totals) {
    std::string text = fmt::format("Total Number Of Records: {}", totals.records);
    if (totals.showsCost) text += "  |  Total Cost " + totals.cost;
    return text;
}

}  // namespace tallix
