// sight_scale: the grid of the Design view and its scale bar, in steps of 1, 2 and 5.
#pragma once

#include "core/length_unit.hpp"
#include "views/sight/sight_drawing.hpp"
#include "views/sight/view_box.hpp"

#include <cstdint>
#include <string>

namespace kvt {

/// The least of 1, 2 and 5 times a power of ten that is not below a value > 0.
double step_from(double least);
/// The largest of them that is not above a value > 0.
double step_up_to(double largest);

/// Between two lines of the grid at least so many pixels.
inline constexpr double SMALLEST_GRID_STEP = 24.0;

/// The step of the grid in the unit; 0 while no design has a scale.
double grid_step(const view_box& box, const length_unit& unit);

/// A length with its unit: "2.85 mm", in one decimal more than the place of the mouse has.
std::string length_text(double mm, const length_unit& unit, std::int16_t language);

/// Lines through the multiples of the step from the inner rotor axis, as far as the box goes, and a
/// bar with its length in the lower right corner, at most a quarter of the box long.
void add_grid(const view_box& box, const length_unit& unit, std::int16_t language,
              const sight_metrics& metrics, sight_drawing& drawing);

}  // namespace kvt
