// A contour as the data of an SVG path.
// Source: docs/file-formats.md, "SVG files (`.svg`)".
#pragma once

#include "exact/exact_contour.hpp"

#include <string>

namespace kvt {

/// Millimetres with up to six decimals and none that say nothing: "12.5", "-0.000001", "0".
std::string svg_number(double mm);

/// "M12.5,0 A..., L..., C... Z": the ordinate points down, so y changes its sign. An arc is drawn
/// in parts of at most a third of a turn, whose centre the ends and the radius fix well.
std::string svg_path(const exact_contour& contour);

}  // namespace kvt
