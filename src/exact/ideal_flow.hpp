// ideal_flow: the flow of the pair without clearance over a turn, mm3 a radian of the inner rotor.
// Source: docs/formulas/exact_flow.md.
#pragma once

#include "exact/exact_pair.hpp"

#include <array>
#include <cstddef>
#include <vector>

namespace kvt {

/// The sum of the rates of all chambers that shrink, at an angle of the inner rotor, radians. At 0
/// a lobe stands on the line of centres at the inner rotor's side.
///     Q = max g - min g over the lobes
double ideal_flow(const exact_pair& pair, double angle);

/// After this angle everything repeats: 2 pi / (N - 1).
double flow_period(const exact_pair& pair);

/// Where the flow has a kink, because another lobe takes over: 0 .. flow_period, both included.
std::vector<double> flow_kinks(const exact_pair& pair);

inline constexpr std::size_t FLOW_HARMONICS = 6;

struct flow_figures {
    double mean = 0.0, least = 0.0, largest = 0.0;  ///< mm3 a radian
    double irregularity = 0.0;                      ///< (largest - least) / mean
    int pulses = 0;  ///< a revolution: N - 1 for even N, else 2 (N - 1)
    /// Amplitudes over the mean at the orders (N - 1), 2 (N - 1) .. of the shaft.
    std::array<double, FLOW_HARMONICS> harmonics = {};
};

flow_figures figures_of_flow(const exact_pair& pair);

}  // namespace kvt
