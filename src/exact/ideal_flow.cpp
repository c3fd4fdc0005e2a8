#include "exact/ideal_flow.hpp"

#include "exact/quadrature.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kvt {

namespace {

constexpr double PI = std::numbers::pi;
constexpr int PANELS = 12;  ///< of each smooth piece
constexpr int STEPS = 48;   ///< of each smooth piece, before its extremes are refined

/// The integral over a period, piece by piece between the kinks.
double over_period(const exact_pair& pair, const real_function& f) {
    const std::vector<double> kinks = flow_kinks(pair);
    double sum = 0.0;
    for (std::size_t i = 0; i + 1 < kinks.size(); ++i) {
        sum += integral(f, kinks[i], kinks[i + 1], PANELS);
    }
    return sum;
}

void find_extremes(const exact_pair& pair, const real_function& flow, flow_figures& figures) {
    const std::vector<double> kinks = flow_kinks(pair);
    figures.least = figures.largest = flow(kinks.front());
    for (std::size_t i = 0; i + 1 < kinks.size(); ++i) {
        figures.largest =
            std::max(figures.largest, largest_between(flow, kinks[i], kinks[i + 1], STEPS).value);
        figures.least =
            std::min(figures.least, smallest_between(flow, kinks[i], kinks[i + 1], STEPS).value);
    }
}

}  // namespace

double ideal_flow(const exact_pair& pair, double angle) {
    const double outer = -angle / pair.inner_turn();
    double least = sweep_of_lobe(pair, outer);
    double largest = least;
    for (int lobe = 1; lobe < pair.lobes; ++lobe) {
        const double g = sweep_of_lobe(pair, outer + lobe * pair.pitch());
        least = std::min(least, g);
        largest = std::max(largest, g);
    }
    return largest - least;
}

double flow_period(const exact_pair& pair) {
    return 2.0 * PI / (pair.lobes - 1);
}

std::vector<double> flow_kinks(const exact_pair& pair) {
    const double period = flow_period(pair);
    // Halfway two lobes are as near to the line of centres on one side; with an odd number the same
    // happens at the start on the other side.
    return {0.0, period / 2.0, period};
}

flow_figures figures_of_flow(const exact_pair& pair) {
    const real_function flow = [&](double angle) { return ideal_flow(pair, angle); };
    const double period = flow_period(pair);
    flow_figures figures;
    figures.mean = over_period(pair, flow) / period;
    find_extremes(pair, flow, figures);
    figures.irregularity = (figures.largest - figures.least) / figures.mean;
    figures.pulses = (pair.lobes % 2 == 0 ? 1 : 2) * (pair.lobes - 1);
    for (std::size_t i = 0; i < FLOW_HARMONICS; ++i) {
        // The flow is even about 0, so it has cosines alone.
        const double order = 2.0 * PI * static_cast<double>(i + 1) / period;
        const double cosine =
            over_period(pair, [&](double angle) { return flow(angle) * std::cos(order * angle); });
        figures.harmonics[i] = std::abs(2.0 * cosine / period) / figures.mean;
    }
    return figures;
}

}  // namespace kvt
