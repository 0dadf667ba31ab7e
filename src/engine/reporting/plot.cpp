#include "reporting/plot.h"

namespace tallix {
namespace {

constexpr std::size_t kFewestPoints = 3;

}  // namespace

PlotError::PlotError() : std::runtime_error("x() and y() are different sizes") {}

std::vector<PlotLine> Plot(std::span<const double> x, std::span<const double> y) {
    if (x.size() != y.size()) throw PlotError();
    std::vector<PlotLine> lines;
    if (x.size() < kFewestPoints) return lines;
    for (std::size_t point = 1; point < x.size(); ++point) {
        lines.push_back({{x[point - 1], y[point - 1]}, {x[point], y[point]}});
    }
    return lines;
}

}  // namespace tallix
