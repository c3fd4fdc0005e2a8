// What holds for every port: random ports on random rotors, all outlines closed, simple, dense,
// tangent, on their side.
#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "ports/build_ports.hpp"
#include "support/port_design.hpp"
#include "support/property_runs.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <span>

namespace kvt {
namespace {

constexpr int PORTS = 300;
const double PI = std::acos(-1.0);

using points = std::vector<point2>;

std::string typed(double value) {
    return number_text(std::round(value * 1000.0) / 1000.0);
}

/// Rotors and ports as an engineer would choose them: starts 5 to 45 degrees, ends 130 to 175, the
/// outer angles nearer to the axis than the inner ones, a fillet of up to a fifth of the port's
/// width (or none).
void type_random_design(random_values& random, port_design& tested) {
    const int lobes = random.whole(4, 15);
    const double ecc = random.real(0.8, 5.0);
    const double radinnroot = ecc * (lobes * random.real(0.5, 1.0) + 1.0);
    tested.boxes.numlobes = number_text(lobes);
    tested.boxes.ecc = typed(ecc);
    tested.boxes.radinnroot = typed(radinnroot);
    tested.boxes.radouter = typed(ecc * random.real(2.0, 5.0));
    tested.design.radinnroot = radinnroot;
    tested.design.outer_root = radinnroot + 3.0 * ecc;
    const double width = 2.0 * ecc;
    const std::string radius = random.whole(0, 5) == 0 ? "" : typed(random.real(0.05, 0.2) * width);
    tested.boxes.port_radii = radius;
    for (const char* port : {"inlet", "outlet"}) {
        const auto box = [&](const char* place) -> std::string& {
            return tested.boxes.*find_entry(std::string(port) + place)->member;
        };
        const double start = random.real(5.0, 45.0);
        const double end = random.real(5.0, 50.0);
        box("_start_inner") = typed(start);
        box("_start_outer") = typed(start * random.real(0.75, 0.95));
        box("_end_inner") = typed(180.0 - end);
        box("_end_outer") = typed(180.0 - end * random.real(1.05, 1.3));
    }
    tested.boxes.inlet_inner_radius = tested.boxes.inlet_outer_radius = "";
    tested.boxes.Outlet_inner_radius = tested.boxes.Outlet_outer_radius = "";
}

points outline(std::span<const double> x, std::span<const double> y, int last) {
    points result;
    for (std::int64_t i = 0; i <= last; ++i) {
        result.push_back({checked_at(x, i), checked_at(y, i)});
    }
    return result;
}

double turn(point2 a, point2 b, point2 c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool segments_cross(point2 a, point2 b, point2 c, point2 d) {
    if (std::max(a.x, b.x) < std::min(c.x, d.x) || std::max(c.x, d.x) < std::min(a.x, b.x) ||
        std::max(a.y, b.y) < std::min(c.y, d.y) || std::max(c.y, d.y) < std::min(a.y, b.y)) {
        return false;
    }
    return turn(a, b, c) * turn(a, b, d) < 0.0 && turn(c, d, a) * turn(c, d, b) < 0.0;
}

void expect_simple(const points& outline) {
    const std::size_t segments = outline.size() - 1;
    for (std::size_t i = 0; i < segments; ++i) {
        for (std::size_t j = i + 2; j < segments; ++j) {
            ASSERT_FALSE(segments_cross(outline[i], outline[i + 1], outline[j], outline[j + 1]))
                << "segments " << i << " and " << j;
        }
    }
}

double distance_to_line(point2 p, point2 a, point2 b) {
    return std::fabs(turn(a, b, p)) / distance(a, b);
}

/// The search ends when g is within 0.001 of A; one step more moves it by up to 0.001 degrees.
double search_tolerance(double centre_r) {
    return centre_r * (0.001 + 0.001 * PI / 180.0) + 1e-6;
}

/// Kept: a side that passes the arc's centre at the distance f has a target of about 0, and the
/// search then ends at once at the entered angle, off the tangent.
bool ended_at_once(double t_deg, const std::string& entered) {
    return t_deg == val(entered);
}

void expect_tangent(point2 c, double f, double shift, double centre_r, point2 side_a,
                    point2 side_b) {
    EXPECT_NEAR(std::hypot(c.x + shift, c.y), centre_r, 1e-9);
    EXPECT_NEAR(distance_to_line(c, side_a, side_b), f, search_tolerance(centre_r));
}

/// The outlet's fillets touch arcs and sides. Returns how many were tested.
int expect_tangent_fillets(const port_design& tested) {
    const port_params& p = tested.ports;
    const point2 p1 = p.outlet.corners[START_INNER].p, p2 = p.outlet.corners[END_INNER].p;
    const point2 p3 = p.outlet.corners[END_OUTER].p, p4 = p.outlet.corners[START_OUTER].p;
    const double f = p.port_radius;
    const double e = tested.design.ecc;
    int fillets = 0;
    if (!ended_at_once(p.outlet.corners[START_INNER].t_deg, tested.boxes.outlet_start_inner)) {
        expect_tangent(p.outlet.corners[START_INNER].c, f, 0.0, p.outlet.inner_r + f, p1, p4);
        ++fillets;
    }
    if (!ended_at_once(p.outlet.corners[END_INNER].t_deg, tested.boxes.outlet_end_inner)) {
        expect_tangent(p.outlet.corners[END_INNER].c, f, 0.0, p.outlet.inner_r + f, p2, p3);
        ++fillets;
    }
    if (!ended_at_once(p.outlet.corners[END_OUTER].t_deg, tested.boxes.outlet_end_outer)) {
        expect_tangent(p.outlet.corners[END_OUTER].c, f, e, p.outlet.outer_r - f, p2, p3);
        ++fillets;
    }
    if (!ended_at_once(p.outlet.corners[START_OUTER].t_deg, tested.boxes.outlet_start_outer)) {
        expect_tangent(p.outlet.corners[START_OUTER].c, f, e, p.outlet.outer_r - f, p1, p4);
        ++fillets;
    }
    return fillets;
}

void expect_sound(const points& outline, double largest_step, int side) {
    ASSERT_GT(outline.size(), 100U);
    EXPECT_EQ(outline.front(), outline.back()) << "closed";
    for (std::size_t i = 1; i < outline.size(); ++i) {
        ASSERT_LE(distance(outline[i - 1], outline[i]), largest_step) << i;
        ASSERT_GT(outline[i].y * side, 0.0) << "on its side of the axis, " << i;
    }
    expect_simple(outline);
}

/// The last step of an arc is below a whole degree; a twentieth of the longer side.
double largest_step(const port_params& ports, double outer_r, point2 s1, point2 s4, point2 s2,
                    point2 s3) {
    const double side = std::max(distance(s1, s4), distance(s2, s3));
    return std::max({outer_r * PI / 180.0, side / 20.0, ports.port_radius * PI / 180.0}) * 1.0001 +
           search_tolerance(outer_r);
}

TEST(port_outline_properties, hold_for_random_ports_on_random_rotors) {
    random_values random;
    int built = 0;
    int fillets = 0;
    for (int run = property_count(PORTS); run > 0; --run) {
        port_design tested;
        type_random_design(random, tested);
        port_work work = tested.work();
        const port_end inlet_end = build_inlet_port(work);
        const port_end outlet_end = build_outlet_port(work);
        const port_params& p = tested.ports;
        if (inlet_end == port_end::refused || outlet_end == port_end::refused ||
            !tested.person.messages.empty()) {
            continue;
        }
        ++built;
        SCOPED_TRACE("inlet " + tested.boxes.inlet_start_inner + " " +
                     tested.boxes.inlet_start_outer + " " + tested.boxes.inlet_end_inner + " " +
                     tested.boxes.inlet_end_outer + " outlet " + tested.boxes.outlet_start_inner +
                     " " + tested.boxes.outlet_start_outer + " " + tested.boxes.outlet_end_inner +
                     " " + tested.boxes.outlet_end_outer + " R " + tested.boxes.inlet_inner_radius +
                     " Q " + tested.boxes.inlet_outer_radius + " f " + tested.boxes.port_radii +
                     " e " + tested.boxes.ecc);
        expect_sound(outline(p.inlet.x, p.inlet.y, p.inlet.last),
                     largest_step(p, p.inlet.outer_r, p.inlet.corners[START_INNER].s,
                                  p.inlet.corners[START_OUTER].s, p.inlet.corners[END_INNER].s,
                                  p.inlet.corners[END_OUTER].s),
                     -1);
        expect_sound(outline(p.outlet.x, p.outlet.y, p.outlet.last),
                     largest_step(p, p.outlet.outer_r, p.outlet.corners[START_INNER].s,
                                  p.outlet.corners[START_OUTER].s, p.outlet.corners[END_INNER].s,
                                  p.outlet.corners[END_OUTER].s),
                     1);
        fillets += expect_tangent_fillets(tested);
        if (testing::Test::HasFailure()) {
            return;
        }
    }
    EXPECT_GE(built, property_count(PORTS) / 2) << "too few of the random ports were accepted";
    EXPECT_GE(fillets, 3 * built) << "too few fillets were compared";
    std::cout << built << " pairs of ports built, " << fillets << " fillets compared\n";
}

}  // namespace
}  // namespace kvt
