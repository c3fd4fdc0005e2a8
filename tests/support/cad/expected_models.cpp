#include "support/cad/expected_models.hpp"

#include "geometry/outer_path.hpp"
#include "output/port_contours.hpp"
#include "support/cad/expected_contours.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <utility>

namespace kvt {

namespace {

constexpr double TURN = 2.0 * std::numbers::pi;

/// A closed contour: its inside, its distance, and places on it.
struct contour {
    flat_region inside;
    std::function<double(point2)> distance;
    std::function<point2(random_values&)> place;
};

contour polygon(const std::vector<point2>& corners) {
    contour made;
    made.inside = polygon_region(corners);
    made.distance = [corners](point2 point) {
        double nearest = std::numeric_limits<double>::infinity();
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const point2 foot =
                nearest_on_line(corners[i], corners[(i + 1) % corners.size()], point);
            nearest = std::min(nearest, distance(point, foot));
        }
        return nearest;
    };
    made.place = [corners](random_values& random) {
        const auto i =
            static_cast<std::size_t>(random.whole(0, static_cast<int>(corners.size()) - 1));
        const point2 start = corners[i], end = corners[(i + 1) % corners.size()];
        const double share = random.real(0.0, 1.0);
        return point2{start.x + share * (end.x - start.x), start.y + share * (end.y - start.y)};
    };
    return made;
}

contour chain(const std::vector<circle_arc>& arcs) {
    contour made;
    made.inside = arc_region(arcs);
    made.distance = [arcs](point2 point) {
        double nearest = std::numeric_limits<double>::infinity();
        for (const circle_arc& arc : arcs) {
            nearest = std::min(nearest, distance(point, nearest_on(arc, point)));
        }
        return nearest;
    };
    made.place = [arcs](random_values& random) {
        const int last = static_cast<int>(arcs.size()) - 1;
        return arcs[static_cast<std::size_t>(random.whole(0, last))].at(random.real(0.0, 1.0));
    };
    return made;
}

contour ring(const contour& bore, point2 centre, double radius) {
    contour made;
    made.inside = [bore, rim = circle_region(centre, radius)](point2 point) {
        return rim(point) && !bore.inside(point);
    };
    made.distance = [=](point2 point) {
        return std::min(bore.distance(point), std::abs(distance(point, centre) - radius));
    };
    made.place = [=](random_values& random) {
        if (random.whole(0, 3) != 0) {
            return bore.place(random);
        }
        const point2 on_rim = polar_point(radius, random.real(0.0, TURN));
        return point2{centre.x + on_rim.x, centre.y + on_rim.y};
    };
    return made;
}

expected_body body(std::string name, contour of, double from_z, double to_z) {
    return {std::move(name),
            std::move(of.inside),
            std::move(of.distance),
            std::move(of.place),
            from_z,
            to_z};
}

expected_body outer_rotor(const program& kavetta, outer_contour outer) {
    const double unit = length_unit_of(kavetta.app_state).mm;
    const design_params& calculated = kavetta.design_params;
    const design_params design = outer_rotor_entries(kavetta.entries, unit);
    const contour bore =
        outer == outer_contour::arcs ? chain(bore_arcs(design)) : polygon(bore_chords(design));
    return body("outer rotor", ring(bore, {-design.ecc, 0.0}, calculated.maxdiameter / 2.0), 0.0,
                calculated.thick);
}

expected_body inner_rotor(const program& kavetta) {
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    std::vector<point2> points;
    for (std::size_t i = 0; i < 3600; ++i) {
        points.push_back({rotors.inner_x[i], rotors.inner_y[i]});
    }
    return body("inner rotor", polygon(points), 0.0, kavetta.design_params.thick);
}

struct expected_ports {
    const program& kavetta;
    std::vector<expected_body> bodies = {};

    bool is_ticked(const char* box) const {
        return kavetta.entries.*find_entry(box)->member == "1";
    }
    bool is_double_sided(port_side side) const {
        return is_ticked(side == port_side::inlet ? "inlet_double_sided" : "outlet_double_sided");
    }
    void add(const char* name, const std::vector<point2>& points, double from_z, double to_z) {
        if (points.size() > 2) {
            bodies.push_back(body(name, polygon(points), from_z, to_z));
        }
    }
    void add_lower(const char* name, port_side side) {
        const double thick = kavetta.design_params.thick;
        add(name, port_contour(kavetta.port_params, side),
            is_double_sided(side) ? -thick / 2.0 : -thick, 0.0);
    }
    void add_upper(const char* name, port_side side) {
        const double thick = kavetta.design_params.thick;
        const double bottom = thick + kavetta.design_params.axial_clear;
        if (is_double_sided(side)) {
            add(name, port_contour(kavetta.port_params, side), bottom, bottom + 0.5 * thick);
        } else if (is_ticked("shadow_ports")) {
            add(name, port_contour(kavetta.port_params, side), bottom, bottom + 0.2 * thick);
        }
    }
    void add_groove() {
        if (is_ticked("metering_groove")) {
            add("groove", groove_contour(kavetta.port_params), -kavetta.port_params.groove_depth_mm,
                0.0);
        }
    }
};

std::vector<expected_body> porting(const program& kavetta) {
    expected_ports ports{kavetta};
    ports.add_lower("inlet lower", port_side::inlet);
    ports.add_lower("outlet lower", port_side::outlet);
    ports.add_groove();
    ports.add_upper("outlet upper", port_side::outlet);
    ports.add_upper("inlet upper", port_side::inlet);
    return ports.bodies;
}

/// A length between a nanometre and a millimetre, each power of ten as likely as the others.
double small_length(random_values& random) {
    return std::pow(10.0, random.real(-6.0, 0.0));
}

double near(double z, random_values& random) {
    return z + (random.whole(0, 1) == 0 ? 1.0 : -1.0) * small_length(random);
}

point3 random_place(const expected_body& expected, random_values& random, bool close) {
    const point2 on_contour = expected.point_on_contour(random);
    const point2 away =
        polar_point(close ? small_length(random) : random.real(0.0, 20.0), random.real(0.0, TURN));
    const double height = expected.to_z - expected.from_z;
    const double z =
        random.whole(0, 7) == 0
            ? near(random.whole(0, 1) == 0 ? expected.from_z : expected.to_z, random)
            : random.real(expected.from_z - height / 4.0, expected.to_z + height / 4.0);
    return {on_contour.x + away.x, on_contour.y + away.y, z};
}

double distance_from_surface(const expected_body& expected, const point3& place) {
    return std::min({expected.distance({place.x, place.y}), std::abs(place.z - expected.from_z),
                     std::abs(place.z - expected.to_z)});
}

}  // namespace

std::vector<expected_body> expected_bodies(const program& kavetta, model_kind kind,
                                           outer_contour outer) {
    switch (kind) {
        case model_kind::trochoid:
            return {};
        case model_kind::inner:
            return {inner_rotor(kavetta)};
        case model_kind::outer:
            return {outer_rotor(kavetta, outer)};
        case model_kind::porting:
            return porting(kavetta);
        case model_kind::assembly:
            break;
    }
    return {outer_rotor(kavetta, outer), inner_rotor(kavetta)};
}

void expect_same_solid(const expected_body& expected, const solid& built, double band, int places,
                       random_values& random) {
    int within = 0;
    for (int i = 0; i < places; ++i) {
        const point3 place = random_place(expected, random, i % 2 == 0);
        const bool inside = place.z > expected.from_z && place.z < expected.to_z &&
                            expected.inside({place.x, place.y});
        within += inside ? 1 : 0;
        if (built(place) != inside && distance_from_surface(expected, place) > band) {
            ADD_FAILURE() << expected.name << " is " << (inside ? "missing" : "too large") << " at "
                          << place.x << ", " << place.y << ", " << place.z << ", "
                          << distance_from_surface(expected, place) << " mm from its surface";
            return;
        }
    }
    EXPECT_GT(within, places / 20) << expected.name;
    EXPECT_LT(within, places - places / 20) << expected.name;
}

}  // namespace kvt
