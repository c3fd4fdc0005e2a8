// point_arguments: what takes the place of a CAD package reads points from the arguments of a call.
#pragma once

#include "automation/value.hpp"
#include "geometry/point2.hpp"
#include "geometry/point3.hpp"

#include <cstddef>
#include <vector>

namespace kvt {

/// An array of exactly three numbers. Throws automation_error 13 for anything else.
point3 place(const automation::values& arguments, std::size_t i);
/// A flat list of pairs (of triples, whose third number is not looked at) as points, each number
/// times the millimetres in one unit: at least two points, and none in part. Throws
/// automation_error 13 for another list.
std::vector<point2> flat_points(const std::vector<double>& numbers, std::size_t width,
                                double mm_per_unit = 1.0);

}  // namespace kvt
