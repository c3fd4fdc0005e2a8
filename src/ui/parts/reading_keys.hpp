// reading_keys: which point of a chart the keys read next.
#pragma once

#include "views/charts/chart_drawing.hpp"

#include <optional>
#include <vector>

namespace kvt {

/// Left and Right go to the neighbour of the point that is read, with Ctrl a tenth of the curve on;
/// Up and Down to the same point of the curve before or after it that is shown. At an end they
/// stay. Without a reading any of them reads the first point of the first curve that is shown.
/// Nothing for another key, and when no curve is shown. key is a Qt::Key.
std::optional<chart_reading> next_reading(const result_chart& chart, const hidden_curves& hidden,
                                          const std::optional<chart_reading>& reading, int key,
                                          bool with_ctrl);

}  // namespace kvt
