#include "cad/housing.hpp"

#include <algorithm>
#include <iterator>

namespace kvt {

namespace {

constexpr double USUAL_WALL = 5.0, USUAL_FLOOR = 5.0;
constexpr double PRINT_CLEARANCE = 0.15;

double deepest(const std::vector<port_body>& pockets) {
    double lowest = 0.0;
    for (const port_body& pocket : pockets) {
        lowest = std::min(lowest, pocket.from_z);
    }
    return lowest;
}

bool reaches(const port_body& pocket, point2 centre, double radius) {
    return std::ranges::any_of(pocket.outline,
                               [&](point2 point) { return !(distance(point, centre) < radius); });
}

}  // namespace

housing_size usual_housing(const design_params& design) {
    return {design.maxdiameter + 2.0 * (PRINT_CLEARANCE + USUAL_WALL), USUAL_WALL, USUAL_FLOOR};
}

housing_plan plan_housing(const design_params& design, const std::vector<port_body>& bodies,
                          const housing_size& size) {
    housing_plan plan;
    plan.centre = {-design.ecc, 0.0};
    plan.outer_radius = size.outer_diameter / 2.0;
    plan.bore_radius = plan.outer_radius - size.wall;
    std::ranges::copy_if(bodies, std::back_inserter(plan.pockets), &port_body::is_lower);
    plan.bottom = deepest(plan.pockets) - size.floor;
    plan.top = upper_port_height(design);
    return plan;
}

housing_problem problem_of(const housing_plan& plan, const housing_size& size,
                           const design_params& design) {
    if (!(size.wall > 0.0)) {
        return housing_problem::wall;
    }
    if (!(plan.bore_radius > design.maxdiameter / 2.0)) {
        return housing_problem::bore;
    }
    if (!(size.floor > 0.0)) {
        return housing_problem::floor;
    }
    const bool breaks_through = std::ranges::any_of(plan.pockets, [&](const port_body& pocket) {
        return reaches(pocket, plan.centre, plan.outer_radius);
    });
    return breaks_through ? housing_problem::pocket : housing_problem::none;
}

}  // namespace kvt
