// The routines of the CAD packages, run against stand-ins that build the solids of the calls: the
// same solids as the contours of the CNC files, in each package's unit.
#include "app/program.hpp"
#include "cad/dispatch.hpp"
#include "support/cad/expected_models.hpp"
#include "support/cad/hard_rotors.hpp"
#include "support/cad/model_designs.hpp"
#include "support/cad/recorded_routine.hpp"
#include "support/cad/stand_ins.hpp"
#include "support/random_design.hpp"
#include "support/undercut_design.hpp"

#include <algorithm>
#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace kvt {
namespace {

constexpr int PLACES = 20000;
constexpr double BAND_MM = 1e-6;
/// Numbers go through the package's unit and back.
constexpr double UNIT_ROUNDING_MM = 1e-12;

using stand_in_ref = std::unique_ptr<cad_stand_in>;

struct driven_package {
    const char* code;
    std::function<stand_in_ref(const length_unit& unit)> start;
    outer_contour outer = outer_contour::chords;
    std::vector<int> percents;
};

const driven_package AUTOCAD = {"acad",
                                [](const length_unit& unit) { return autocad_stand_in(unit.mm); },
                                outer_contour::arcs,
                                {10, 50, 75, 100}};
const driven_package INVENTOR = {"invent",
                                 [](const length_unit&) { return inventor_stand_in(); },
                                 outer_contour::chords,
                                 {10, 50, 75, 100}};
const driven_package SOLID_EDGE = {"SE",
                                   [](const length_unit&) { return solidedge_stand_in(); },
                                   outer_contour::chords,
                                   {10, 30, 60, 70, 85, 100}};
const driven_package SOLIDWORKS = {"SW",
                                   [](const length_unit&) { return solidworks_stand_in(); },
                                   outer_contour::chords,
                                   {10, 50, 60, 90, 100}};
const driven_package CATIA = {"CAT",
                              [](const length_unit&) { return catia_stand_in(); },
                              outer_contour::chords,
                              {10, 50, 75, 100}};
const std::array PACKAGES = {AUTOCAD, INVENTOR, SOLID_EDGE, SOLIDWORKS, CATIA};

constexpr std::array MODELS = {model_kind::trochoid, model_kind::inner, model_kind::outer,
                               model_kind::porting, model_kind::assembly};
constexpr std::array OUTER_ALONE = {model_kind::outer};
constexpr std::array ROTORS_ALONE = {model_kind::outer, model_kind::assembly};
constexpr std::array PORTING_ALONE = {model_kind::porting};

/// The groove is CATIA's last body.
void order_as(const driven_package& package, std::vector<expected_body>& bodies) {
    if (package.code == std::string("CAT")) {
        std::stable_partition(bodies.begin(), bodies.end(),
                              [](const expected_body& body) { return body.name != "groove"; });
    }
}

void expect_trochoid(const program& kavetta, std::vector<std::vector<point2>> curves) {
    ASSERT_EQ(curves.size(), 1U);
    std::vector<point2>& points = curves.front();
    if (points.front() == points.back()) {
        points.pop_back();
    }
    ASSERT_EQ(points.size(), 3600U);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const point2 told = {kavetta.rotor_profiles.troch_x[i], kavetta.rotor_profiles.troch_y[i]};
        ASSERT_LT(distance(points[i], told), UNIT_ROUNDING_MM) << i;
    }
}

struct comparison {
    random_values& random;
    int places = PLACES;
    double band = BAND_MM;
};

void expect_model(const driven_package& package, const cad_stand_in& made, const program& kavetta,
                  model_kind kind, comparison how) {
    std::vector<expected_body> expected = expected_bodies(kavetta, kind, package.outer);
    order_as(package, expected);
    const std::vector<solid> built = made.bodies();
    ASSERT_EQ(built.size(), expected.size());
    for (std::size_t i = 0; i < built.size(); ++i) {
        expect_same_solid(expected[i], built[i], how.band, how.places, how.random);
    }
    if (kind == model_kind::trochoid) {
        expect_trochoid(kavetta, made.curves());
    } else {
        EXPECT_TRUE(made.curves().empty());
    }
    EXPECT_EQ(made.left_on(), std::vector<std::string>());
}

void expect_models(const program& kavetta, const driven_package& package,
                   std::span<const model_kind> kinds, comparison how) {
    for (const model_kind kind : kinds) {
        SCOPED_TRACE(std::string(package.code) + " " +
                     std::string(model_rows()[static_cast<std::size_t>(kind)].word));
        const stand_in_ref made = package.start(length_unit_of(kavetta.app_state));
        const std::vector<int> percents =
            run_routine(*made, model_package_of(package.code)->routine_of(kind), kavetta);
        EXPECT_EQ(percents, package.percents);
        expect_model(package, *made, kavetta, kind, how);
    }
}

}  // namespace

TEST(replayed_models, of_a_metric_design_are_the_contours_of_the_files) {
    random_values random;
    for (const driven_package& package : PACKAGES) {
        expect_models(double_sided_design(), package, MODELS, {random, property_count(PLACES)});
    }
}

TEST(replayed_models, of_an_inch_design_are_the_contours_of_the_files) {
    random_values random;
    for (const driven_package& package : PACKAGES) {
        expect_models(inch_design_with_shadow_ports(), package, MODELS,
                      {random, property_count(PLACES)});
    }
}

TEST(replayed_models, without_fillets_are_the_contours_of_the_files) {
    random_values random;
    const program kavetta = design_with_ports("n03_transfer_sharp");
    for (const driven_package& package : PACKAGES) {
        expect_models(kavetta, package, MODELS, {random, property_count(PLACES)});
    }
}

TEST(replayed_models, of_random_designs_are_the_contours_of_the_files) {
    random_values random;
    for (int count = property_count(12); count > 0; --count) {
        const program kavetta = random_design(random);
        SCOPED_TRACE("lobes " + kavetta.entries.numlobes + ", fillet " + kavetta.entries.fillet);
        for (const driven_package& package : PACKAGES) {
            expect_models(kavetta, package, MODELS, {random, 2000});
        }
    }
}

TEST(replayed_models, keep_the_contour_where_hardly_any_root_arc_is_left) {
    random_values random;
    for (const double gap : {1e-2, 2e-4, 1.1e-4, 9e-5, 1e-5, 1e-6, 1e-8}) {
        SCOPED_TRACE(gap);
        program kavetta = design_with_ports("n07_engine_oil_groove");
        type_fillet_for_gap(kavetta, gap);
        for (const driven_package& package : PACKAGES) {
            const bool reduces = package.outer == outer_contour::arcs && gap < 1e-4;
            expect_models(kavetta, package, OUTER_ALONE,
                          {random, property_count(PLACES), reduces ? 0.002 : BAND_MM});
        }
    }
}

TEST(replayed_models, of_lobes_of_more_than_half_a_turn_are_the_contours_of_the_files) {
    random_values random;
    program kavetta = opened_design("n07_engine_oil_groove");
    type_undercut_rotors(kavetta.entries);
    const program calculated = calculated_rotors(std::move(kavetta));
    for (const driven_package& package : PACKAGES) {
        expect_models(calculated, package, ROTORS_ALONE, {random, property_count(PLACES)});
    }
}

TEST(replayed_models, of_many_lobes_are_the_contours_of_the_files) {
    random_values random;
    for (const int lobes : {20, 26, 32}) {
        SCOPED_TRACE(lobes);
        program kavetta = opened_design("n07_engine_oil_groove");
        type_many_lobes(kavetta.entries, lobes);
        const program calculated = calculated_rotors(std::move(kavetta));
        for (const driven_package& package : PACKAGES) {
            expect_models(calculated, package, ROTORS_ALONE, {random, property_count(PLACES)});
        }
    }
}

TEST(replayed_models, leave_out_the_bodies_of_missing_outlines) {
    random_values random;
    for (const driven_package& package : PACKAGES) {
        program without_inlet = double_sided_design();
        without_inlet.port_params.inlet.last = 0;
        expect_models(without_inlet, package, PORTING_ALONE, {random, 2000});
        program without_groove = double_sided_design();
        without_groove.port_params.groove_last = 0;
        expect_models(without_groove, package, PORTING_ALONE, {random, 2000});
        program without_any = without_inlet;
        without_any.port_params.outlet.last = without_any.port_params.groove_last = 0;
        expect_models(without_any, package, PORTING_ALONE, {random, 2000});
    }
}

TEST(replayed_models, come_by_a_definition_where_inventor_knows_no_distance_extent) {
    random_values random;
    driven_package package = INVENTOR;
    package.start = [](const length_unit&) {
        return inventor_stand_in({.knows_distance_extent = false});
    };
    expect_models(double_sided_design(), package, MODELS, {random, 2000});
}

TEST(replayed_models, come_by_further_protrusions_where_solid_edge_makes_no_new_model) {
    random_values random;
    for (const new_model further : {new_model::refused, new_model::not_added, new_model::failed}) {
        driven_package package = SOLID_EDGE;
        package.start = [further](const length_unit&) {
            return solidedge_stand_in({.knows_modelling_mode = false, .further = further});
        };
        expect_models(double_sided_design(), package, MODELS, {random, 2000});
    }
}

TEST(replayed_models, rotate_the_copies_that_autocad_only_moves_round) {
    random_values random;
    driven_package package = AUTOCAD;
    package.start = [](const length_unit& unit) {
        return autocad_stand_in(unit.mm, {.turns_copies = false});
    };
    expect_models(double_sided_design(), package, ROTORS_ALONE, {random, property_count(PLACES)});
    expect_models(inch_design_with_shadow_ports(), package, ROTORS_ALONE,
                  {random, property_count(PLACES)});
    for (const int lobes : {3, 4, 20, 26}) {
        SCOPED_TRACE(lobes);
        program kavetta = opened_design("n07_engine_oil_groove");
        type_many_lobes(kavetta.entries, lobes);
        expect_models(calculated_rotors(std::move(kavetta)), package, ROTORS_ALONE,
                      {random, property_count(PLACES)});
    }
    for (int count = property_count(8); count > 0; --count) {
        const program kavetta = random_design(random);
        SCOPED_TRACE("lobes " + kavetta.entries.numlobes + ", fillet " + kavetta.entries.fillet);
        expect_models(kavetta, package, OUTER_ALONE, {random, 2000});
    }
}

TEST(replayed_models, take_autocads_copies_for_turned_where_it_tells_no_box) {
    random_values random;
    driven_package package = AUTOCAD;
    package.start = [](const length_unit& unit) {
        return autocad_stand_in(unit.mm, {.tells_boxes = false});
    };
    expect_models(double_sided_design(), package, ROTORS_ALONE, {random, 2000});
}

TEST(replayed_models, open_a_drawing_where_autocad_has_none) {
    random_values random;
    driven_package package = AUTOCAD;
    package.start = [](const length_unit& unit) {
        return autocad_stand_in(unit.mm, {.has_open_drawing = false});
    };
    expect_models(double_sided_design(), package, OUTER_ALONE, {random, 2000});
}

}  // namespace kvt
