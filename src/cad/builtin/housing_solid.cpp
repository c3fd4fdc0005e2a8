#include "cad/builtin/housing_solid.hpp"

namespace kvt::builtin {

namespace {

/// A cylinder between two heights.
body round_body(point2 centre, double radius, double from_z, double to_z) {
    return cylinder({centre.x, centre.y, (from_z + to_z) / 2.0}, radius, to_z - from_z);
}

body pocket_body(const port_body& pocket) {
    return prism(make_face(closed_spline_wire(closed_spline_points(pocket.outline))), pocket.from_z,
                 pocket.height());
}

}  // namespace

body housing_solid(const housing_plan& plan) {
    const body block = round_body(plan.centre, plan.outer_radius, plan.bottom, plan.top);
    body housing = cut(block, round_body(plan.centre, plan.bore_radius, 0.0, plan.top));
    for (const port_body& pocket : plan.pockets) {
        housing = cut(housing, pocket_body(pocket));
    }
    return housing;
}

}  // namespace kvt::builtin
