// The routines of the CAD packages, run against the built-in modeller: real solids, compared with
// the outlines that they are made of and with one another.
#include "cad/autocad_outer_rotor.hpp"
#include "cad/builtin/kernel_shapes.hpp"
#include "cad/dispatch.hpp"
#include "geometry/outer_flank.hpp"
#include "geometry/outer_path.hpp"
#include "support/cad/built_bodies.hpp"
#include "support/cad/contour_grid.hpp"
#include "support/cad/expected_contours.hpp"
#include "support/cad/hard_rotors.hpp"
#include "support/cad/kernel_counts.hpp"
#include "support/cad/model_designs.hpp"
#include "support/cad/recorded_routine.hpp"
#include "support/cad/test_modeller.hpp"
#include "support/undercut_design.hpp"

#include <BRepCheck_Analyzer.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

namespace kvt {
namespace {

constexpr std::array PACKAGES = {"acad", "invent", "SE", "SW", "CAT"};
constexpr double HEIGHT_BAND_MM = 1e-6;

bool draws_arcs(const std::string& code) {
    return code == "acad";
}

/// The dimensions that a package builds the outer rotor with, mm.
design_params outer_design(const program& kavetta, const std::string& code) {
    design_params design = rotor_model_entries(kavetta.entries, length_unit_of(kavetta.app_state));
    if (draws_arcs(code)) {
        design.fillet = autocad::model_fillet(design);
    }
    return design;
}

void build(test_modeller& in, const std::string& code, model_kind kind, const program& kavetta) {
    in.host.set_drawing_unit(length_unit_of(kavetta.app_state).mm);
    run_routine(in.host, model_package_of(code)->routine_of(kind), kavetta);
}

std::vector<builtin::body> built(const std::string& code, model_kind kind, const program& kavetta) {
    test_modeller made;
    build(made, code, kind, kavetta);
    EXPECT_TRUE(made.curves().empty()) << code;
    EXPECT_EQ(made.host.documents().size(), 1U) << code;
    return made.solids();
}

/// What one package builds of a design.
struct package_models {
    package_models(const std::string& code_, const program& of)
        : code(code_),
          assembly(built(code_, model_kind::assembly, of)),
          porting(built(code_, model_kind::porting, of)) {}

    const builtin::body& outer() const { return assembly.at(0); }
    const builtin::body& inner() const { return assembly.at(1); }

    std::string code;
    std::vector<builtin::body> assembly, porting;
};

struct expected_solid {
    std::string name;
    double area = 0.0, tolerance = 0.0;
    double from_z = 0.0, to_z = 0.0;
};

expected_solid expected_inner(const program& kavetta) {
    return {"inner rotor", std::abs(polygon_area(inner_rotor_points(kavetta.rotor_profiles))), 1e-5,
            0.0, kavetta.design_params.thick};
}

/// The true arcs, or the points of the path.
expected_solid expected_outer(const program& kavetta, const std::string& code) {
    const design_params design = outer_design(kavetta, code);
    const double disc = std::numbers::pi * design.maxdiameter * design.maxdiameter / 4.0;
    if (draws_arcs(code)) {
        // The routine places its fillets by an angle with a rounded pi.
        const double tolerance = design.fillet == 0.0 ? 1e-8 : 2e-7;
        return {"outer rotor", disc - bore_area(design), tolerance, 0.0, design.thick};
    }
    return {"outer rotor", disc - std::abs(polygon_area(bore_chords(design))),
            design.fillet == 0.0 ? 2e-5 : 1e-5, 0.0, design.thick};
}

bool has_sharp_ports(const program& kavetta) {
    return val(kavetta.entries.port_radii) == 0.0;
}

double port_tolerance(const program& kavetta, port_body_kind kind) {
    return has_sharp_ports(kavetta) || kind == port_body_kind::groove ? 1e-4 : 2e-5;
}

/// The groove is CATIA's last body.
std::vector<expected_solid> expected_porting(const program& kavetta, const std::string& code) {
    std::vector<port_body> bodies =
        port_bodies(kavetta.design_params, kavetta.port_params, kavetta.entries);
    if (code == "CAT") {
        std::stable_partition(bodies.begin(), bodies.end(), [](const port_body& body) {
            return body.kind != port_body_kind::groove;
        });
    }
    std::vector<expected_solid> expected;
    for (const port_body& body : bodies) {
        expected.push_back({"port body " + std::to_string(static_cast<int>(body.kind)),
                            std::abs(polygon_area(body.outline)),
                            port_tolerance(kavetta, body.kind), body.from_z, body.to_z});
    }
    return expected;
}

/// One closed solid that the kernel finds nothing wrong with.
void expect_valid(const builtin::body& solid) {
    const TopoDS_Shape& shape = solid.shape().kernel;
    EXPECT_EQ(count_of(shape, TopAbs_SOLID), 1);
    EXPECT_EQ(count_of(shape, TopAbs_SHELL), 1);
    EXPECT_TRUE(BRep_Tool::IsClosed(TopExp_Explorer(shape, TopAbs_SHELL).Current()));
    EXPECT_TRUE(BRepCheck_Analyzer(shape).IsValid());
}

void expect_solid(const builtin::body& solid, const expected_solid& expected) {
    SCOPED_TRACE(expected.name);
    expect_valid(solid);
    EXPECT_NEAR(solid.contour_area() / expected.area, 1.0, expected.tolerance) << expected.name;
    EXPECT_NEAR(solid.z0(), expected.from_z, HEIGHT_BAND_MM) << expected.name;
    EXPECT_NEAR(solid.z0() + solid.height(), expected.to_z, HEIGHT_BAND_MM) << expected.name;
}

void expect_solids(const std::vector<builtin::body>& solids,
                   const std::vector<expected_solid>& expected) {
    ASSERT_EQ(solids.size(), expected.size());
    for (std::size_t i = 0; i < solids.size(); ++i) {
        expect_solid(solids[i], expected[i]);
    }
}

const std::vector<point2>& bore_of(const builtin::body& outer) {
    EXPECT_EQ(outer.contours().size(), 2U);
    return outer.contours().at(1);
}

/// The outline of the outer rotor's bore, from which sampled points are measured.
std::function<double(point2)> distance_from_path(const design_params& design,
                                                 const std::string& code) {
    if (!draws_arcs(code)) {
        return
            [grid = contour_grid({bore_chords(design)})](point2 at) { return grid.distance(at); };
    }
    return [arcs = bore_arcs(design)](point2 at) {
        double nearest = std::numeric_limits<double>::infinity();
        for (const circle_arc& arc : arcs) {
            nearest = std::min(nearest, distance(at, nearest_on(arc, at)));
        }
        return nearest;
    };
}

/// Of points an eighth of a span apart: enough to find the largest and the smallest distance.
std::vector<point2> every_fourth(const std::vector<point2>& points) {
    std::vector<point2> some;
    for (std::size_t i = 0; i < points.size(); i += 4) {
        some.push_back(points[i]);
    }
    return some;
}

double farthest(const std::vector<point2>& points, const std::function<double(point2)>& distance) {
    double most = 0.0;
    for (const point2 point : points) {
        most = std::max(most, distance(point));
    }
    return most;
}

/// Where the fillet centre lies beyond the lobe centre the path of the files jumps.
bool has_path(const program& kavetta) {
    const design_params design = outer_design(kavetta, "SW");
    const double C = design.radinnroot + design.ecc + design.radouter;
    return design.fillet == 0.0 ||
           (design.outer_root - design.fillet) * std::cos(fillet_angle(design, C)) < C;
}

void expect_bore_on_path(const program& kavetta, const package_models& models) {
    const design_params design = outer_design(kavetta, models.code);
    const std::vector<point2>& bore = bore_of(models.outer());
    const contour_grid edges({bore});
    EXPECT_LT(farthest(bore_chords(design), [&](point2 at) { return edges.distance(at); }), 0.002);
    EXPECT_LT(farthest(every_fourth(bore), distance_from_path(design, models.code)),
              design.fillet == 0.0 ? 0.01 : 0.002);
}

/// The inner rotor lies in the bore, half a tip clearance from it where they come closest.
void expect_rotors_to_mesh(const program& kavetta, const package_models& models) {
    const model_box box = models.outer().box();
    EXPECT_NEAR((box.lowest.x + box.highest.x) / 2.0, -kavetta.design_params.ecc, 1e-6);
    EXPECT_NEAR((box.lowest.y + box.highest.y) / 2.0, 0.0, 1e-6);
    const contour_grid bore({bore_of(models.outer())});
    double gap = std::numeric_limits<double>::infinity();
    for (const point2 point : every_fourth(models.inner().contours().at(0))) {
        ASSERT_TRUE(bore.encloses(point)) << point.x << ", " << point.y;
        gap = std::min(gap, bore.distance(point));
    }
    EXPECT_NEAR(gap, kavetta.design_params.clearn_half, 0.005);
}

double volume_of(const builtin::body& solid) {
    return solid.contour_area() * solid.height();
}

std::vector<double> port_volumes(const package_models& models) {
    std::vector<double> volumes;
    std::ranges::transform(models.porting, std::back_inserter(volumes), volume_of);
    std::ranges::sort(volumes);  // the groove is not in the same place in all packages
    return volumes;
}

/// Every volume within a tolerance, relative, of another package's.
void expect_same_volumes(const program& kavetta, const package_models& some,
                         const package_models& others) {
    EXPECT_NEAR(volume_of(some.inner()) / volume_of(others.inner()), 1.0, 2e-5);
    if (draws_arcs(some.code) == draws_arcs(others.code)) {
        EXPECT_NEAR(volume_of(some.outer()) / volume_of(others.outer()), 1.0, 2e-5);
    }
    const std::vector<double> volumes = port_volumes(some), told = port_volumes(others);
    ASSERT_EQ(volumes.size(), told.size());
    const bool has_groove = is_ticked(kavetta.entries.metering_groove);
    for (std::size_t i = 0; i < volumes.size(); ++i) {
        EXPECT_NEAR(volumes[i] / told[i], 1.0,
                    has_groove || has_sharp_ports(kavetta) ? 1e-4 : 2e-5);
    }
}

/// All that a design's solids must be, in every package.
void expect_sound_models(const program& kavetta) {
    SCOPED_TRACE("lobes " + kavetta.entries.numlobes + ", fillet " + kavetta.entries.fillet);
    std::vector<package_models> of_packages;
    for (const char* code : PACKAGES) {
        SCOPED_TRACE(code);
        const package_models& models = of_packages.emplace_back(code, kavetta);
        expect_solids(models.assembly, {expected_outer(kavetta, code), expected_inner(kavetta)});
        expect_solids(models.porting, expected_porting(kavetta, code));
        if (has_path(kavetta)) {
            expect_bore_on_path(kavetta, models);
        }
        expect_rotors_to_mesh(kavetta, models);
        expect_same_volumes(kavetta, models, of_packages.front());
        expect_same_volumes(kavetta, models, of_packages[of_packages.size() == 1 ? 0 : 1]);
    }
}

program with_every_point(program kavetta) {
    kavetta.entries.coarseness = "1";
    scripted_user person;
    EXPECT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    design_ports(kavetta, person);
    return kavetta;
}

}  // namespace

TEST(built_models, of_a_metric_design_are_its_outlines_between_their_heights) {
    expect_sound_models(with_every_point(double_sided_design()));
}

TEST(built_models, of_an_inch_design_are_its_outlines_between_their_heights) {
    expect_sound_models(with_every_point(inch_design_with_shadow_ports()));
}

TEST(built_models, without_fillets_are_its_outlines_between_their_heights) {
    expect_sound_models(with_every_point(design_with_ports("n03_transfer_sharp")));
}

TEST(built_models, of_random_designs_are_their_outlines_between_their_heights) {
    random_values random;
    for (int count = property_count(2); count > 0; --count) {
        expect_sound_models(with_every_point(random_design(random)));
    }
}

TEST(built_models, of_one_rotor_are_those_of_the_assembly) {
    const program kavetta = with_every_point(double_sided_design());
    for (const char* code : PACKAGES) {
        SCOPED_TRACE(code);
        expect_solids(built(code, model_kind::inner, kavetta), {expected_inner(kavetta)});
        expect_solids(built(code, model_kind::outer, kavetta), {expected_outer(kavetta, code)});
    }
}

/// The path of the files is a little off the true arcs.
TEST(built_models, of_the_outer_rotor_differ_little_between_autocad_and_the_others) {
    for (const program& kavetta : {double_sided_design(), inch_design_with_shadow_ports(),
                                   design_with_ports("n03_transfer_sharp")}) {
        const double exact = volume_of(built("acad", model_kind::outer, kavetta).at(0));
        EXPECT_NEAR(volume_of(built("SW", model_kind::outer, kavetta).at(0)) / exact, 1.0, 2e-4);
    }
}

TEST(built_models, of_a_trochoid_stay_curves) {
    const program kavetta = double_sided_design();
    for (const char* code : PACKAGES) {
        SCOPED_TRACE(code);
        test_modeller made;
        build(made, code, model_kind::trochoid, kavetta);
        EXPECT_TRUE(made.solids().empty());
        ASSERT_EQ(made.curves().size(), 1U);
        const contour_grid drawn({made.curves()[0].sampled()});
        EXPECT_LT(farthest(trochoid_points(kavetta.rotor_profiles),
                           [&drawn](point2 at) { return drawn.distance(at); }),
                  1e-9);
    }
}

TEST(built_models, follow_the_coarseness_in_autocad_alone) {
    program kavetta = double_sided_design();
    kavetta.entries.coarseness = "40";
    scripted_user person;
    calculate_profiles(kavetta, person);
    EXPECT_EQ(built("acad", model_kind::inner, kavetta).at(0).contours().at(0).size(), 90U);
    expect_solids(built("SW", model_kind::inner, kavetta), {expected_inner(kavetta)});
}

/// Booleans of many solids that hardly touch: the area tells a solid that came out wrong.
TEST(built_models, keep_the_outer_rotor_where_hardly_any_root_arc_is_left) {
    for (const double gap : {2e-4, 1.1e-4, 9e-5, 1e-5, 1e-6, 1e-8}) {
        SCOPED_TRACE(gap);
        program kavetta = design_with_ports("n07_engine_oil_groove");
        type_fillet_for_gap(kavetta, gap);
        for (const char* code : {"acad", "SW"}) {
            SCOPED_TRACE(code);
            expect_solids(built(code, model_kind::outer, kavetta), {expected_outer(kavetta, code)});
        }
    }
}

TEST(built_models, keep_the_outer_rotor_whose_lobes_are_more_than_half_a_turn) {
    program kavetta = opened_design("n07_engine_oil_groove");
    type_undercut_rotors(kavetta.entries);
    const program calculated = calculated_rotors(std::move(kavetta));
    expect_solids(built("acad", model_kind::outer, calculated),
                  {expected_outer(calculated, "acad")});
}

TEST(built_models, keep_the_outer_rotor_of_many_lobes) {
    for (const int lobes : {20, 32}) {
        SCOPED_TRACE(lobes);
        program kavetta = opened_design("n07_engine_oil_groove");
        type_many_lobes(kavetta.entries, lobes);
        const program calculated = calculated_rotors(std::move(kavetta));
        for (const char* code : {"acad", "SW"}) {
            expect_solids(built(code, model_kind::outer, calculated),
                          {expected_outer(calculated, code)});
        }
    }
}

TEST(built_models, of_several_runs_are_together_in_one_drawing_or_in_parts_of_their_own) {
    const program kavetta = double_sided_design();
    test_modeller made;
    for (int run = 0; run < 2; ++run) {
        build(made, "acad", model_kind::inner, kavetta);
        build(made, "SW", model_kind::inner, kavetta);
    }
    std::vector<std::string> names;
    for (const model_document& document : made.host.documents()) {
        names.push_back(document.name);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Drawing1", "Part1", "Part2"}));
    EXPECT_EQ(made.host.documents()[0].bodies.size(), 2U);
}

}  // namespace kvt
