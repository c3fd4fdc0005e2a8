// chart_text: what a chart shows, in words, for who can't see it.
#pragma once

#include "views/charts/chart_drawing.hpp"

#include <string>

namespace kvt {

/// "Delivery Pressure (bar): 1 – 5; Pump Flow (Lit/min): 0 – 40; Curves: 5; 1600 rpm: 12.1 Lit/min
/// – 30.4 Lit/min; ...": the axes from end to end, then the least and the largest value of each
/// curve that is shown, with the decimals that a reading has, and whose curves are dashed. Language
/// and units are those of the chart but for the word of the curves.
std::string chart_text(const result_chart& chart, const hidden_curves& hidden,
                       std::int16_t language);

}  // namespace kvt
