// The lines of the small picture among the call statistics.
#pragma once

#include <span>
#include <stdexcept>
#include <vector>

namespace tallix {

/// The picture reaches from -kPlotReach to kPlotReach on both axes, which cross at 0.
inline constexpr double kPlotReach = 100;

struct PlotPoint {
    double x = 0;
    double y = 0;
};

struct PlotLine {
    PlotPoint from;
    PlotPoint to;
};

/// Raised where the two arrays differ in their bounds.
class PlotError : public std::runtime_error {
public:
    PlotError();

    int Number() const { return kNumber; }

private:
    static constexpr int kNumber = 1000;
};

/// Straight lines from point to point in the picture's own scale; none for fewer than
/// three points. Throws PlotError.
std::vector<PlotLine> Plot(std::span<const double> x, std::span<const double> y);

}  // namespace tallix
