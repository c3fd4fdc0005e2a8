#include "cad/point_arguments.hpp"

#include "automation/table_object.hpp"

#include <string>

namespace kvt {

point3 place(const automation::values& arguments, std::size_t i) {
    const auto [x, y, z] = automation::three_reals(arguments, i);
    return {x, y, z};
}

std::vector<point2> flat_points(const std::vector<double>& numbers, std::size_t width,
                                double mm_per_unit) {
    if (numbers.size() % width != 0 || numbers.size() < 2 * width) {
        automation::refuse_type("points of " + std::to_string(width) + " numbers each");
    }
    std::vector<point2> points;
    points.reserve(numbers.size() / width);
    for (std::size_t i = 0; i < numbers.size(); i += width) {
        points.push_back({numbers[i] * mm_per_unit, numbers[i + 1] * mm_per_unit});
    }
    return points;
}

}  // namespace kvt
