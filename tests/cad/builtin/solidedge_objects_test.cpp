// What the built-in modeller does in the place of Solid Edge, call by call.
#include "cad/builtin/solidedge_objects.hpp"

#include "automation/automation_error.hpp"
#include "automation/table_object.hpp"
#include "support/cad/test_modeller.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

using automation::as_integer;
using automation::number_array;
using automation::object_array;
using automation::object_of;
using automation::object_ref;
using automation::REFUSED;

constexpr double PI = std::numbers::pi;
constexpr double ROUNDING_MM = 1e-9;
constexpr std::int32_t CUBIC = 4, CLOSED = 1, NESTED = 8192, DOWN = 1, UP = 2;
constexpr std::int32_t FEATURE_OK = 1216476310;

class solidedge_objects : public testing::Test {
  protected:
    object_ref new_document() const {
        return object_of(object_of(application, "Documents"), "Add",
                         {std::string("SolidEdge.PartDocument")});
    }
    object_ref xy_plane() const { return object_of(planes, "Item", {1}); }
    object_ref new_profile(const object_ref& plane) const {
        const object_ref set = object_of(object_of(document, "ProfileSets"), "Add");
        return object_of(object_of(set, "Profiles"), "Add", {plane});
    }
    /// Metres.
    static void add_circle(const object_ref& profile, double radius) {
        object_of(profile, "Circles2d")->get("AddByCenterRadius", {0.0, 0.0, radius});
    }
    static void add_spline(const object_ref& profile, std::vector<double> numbers, bool closed) {
        const auto count = static_cast<std::int32_t>(numbers.size() / 2);
        object_of(profile, "BSplineCurves2d")
            ->get("AddByPointsWithCloseOption",
                  {CUBIC, count, number_array{std::move(numbers)}, closed});
    }
    static std::int32_t end(const object_ref& profile, std::int32_t criteria) {
        return as_integer(profile->get("End", {criteria}));
    }
    object_ref circle_profile(double radius) const {
        object_ref profile = new_profile(xy_plane());
        add_circle(profile, radius);
        EXPECT_EQ(end(profile, CLOSED), 0);
        return profile;
    }
    object_ref protrusion(const object_ref& profile, std::int32_t side, double depth) const {
        return object_of(models, "AddFiniteExtrudedProtrusion",
                         {1, object_array{{profile}}, side, depth});
    }

    test_modeller made;
    object_ref application = made.host.create("solidedge.application");
    object_ref document = new_document();
    object_ref planes = object_of(document, "RefPlanes");
    object_ref models = object_of(document, "Models");
};

}  // namespace

TEST_F(solidedge_objects, have_a_new_part_a_run_which_is_the_active_one) {
    protrusion(circle_profile(0.005), UP, 0.004);
    new_document();
    EXPECT_EQ(made.host.documents().at(1).name, "Part2");
    const object_ref active = object_of(application, "ActiveDocument");
    EXPECT_EQ(as_integer(object_of(active, "Models")->get("Count")), 0);
    EXPECT_EQ(as_integer(models->get("Count")), 1);
    EXPECT_FAILURE(
        object_of(application, "Documents")->get("Add", {std::string("SolidEdge.DraftDocument")}),
        REFUSED);
}

TEST_F(solidedge_objects, count_planes_models_and_features_from_1) {
    EXPECT_FAILURE(planes->get("Item", {0}), 9);
    EXPECT_FAILURE(planes->get("Item", {4}), 9);
    EXPECT_FAILURE(planes->get("Item", {2}), REFUSED);
    EXPECT_FAILURE(models->get("Item", {1}), 9);
    const object_ref made_model = protrusion(circle_profile(0.005), UP, 0.004);
    EXPECT_NO_THROW(models->get("Item", {1}));
    EXPECT_FAILURE(models->get("Item", {2}), 9);
    const object_ref features = object_of(made_model, "Features");
    EXPECT_EQ(as_integer(features->get("Count")), 1);
    EXPECT_FAILURE(features->get("Item", {0}), 9);
    EXPECT_EQ(as_integer(object_of(features, "Item", {1})->get("Status")), FEATURE_OK);
}

TEST_F(solidedge_objects, extrude_up_and_down_in_metres) {
    const object_ref raised = object_of(planes, "AddParallelByDistance", {xy_plane(), 0.02, 2});
    const object_ref profile = new_profile(raised);
    add_circle(profile, 0.005);
    EXPECT_EQ(made.curves().size(), 1U);
    EXPECT_EQ(end(profile, CLOSED), 0);
    protrusion(profile, UP, 0.004);
    EXPECT_TRUE(made.curves().empty());
    protrusion(profile, DOWN, 0.004);
    ASSERT_EQ(made.solids().size(), 2U);
    EXPECT_NEAR(made.solids()[0].z0(), 20.0, ROUNDING_MM);
    EXPECT_NEAR(made.solids()[0].box().highest.x, 5.0, ROUNDING_MM);
    EXPECT_NEAR(made.solids()[1].z0(), 16.0, ROUNDING_MM);
    EXPECT_FAILURE(planes->get("AddParallelByDistance", {xy_plane(), -0.02, 2}), REFUSED);
    EXPECT_FAILURE(planes->get("AddParallelByDistance", {xy_plane(), 0.02, 3}), REFUSED);
}

TEST_F(solidedge_objects, find_an_open_profile_not_valid) {
    const object_ref profile = new_profile(xy_plane());
    EXPECT_NE(end(profile, CLOSED), 0) << "nothing is drawn";
    add_spline(profile, square_numbers(0.01), false);
    EXPECT_NE(end(profile, CLOSED), 0);
    EXPECT_FAILURE(protrusion(profile, UP, 0.004), REFUSED);
}

TEST_F(solidedge_objects, extrude_nothing_whose_end_checked_no_closing) {
    const object_ref profile = new_profile(xy_plane());
    add_circle(profile, 0.005);
    EXPECT_FAILURE(protrusion(profile, UP, 0.004), REFUSED);
    EXPECT_NE(end(profile, 0), 0);
    EXPECT_FAILURE(protrusion(profile, UP, 0.004), REFUSED);
    EXPECT_EQ(end(profile, CLOSED), 0);
    EXPECT_NO_THROW(protrusion(profile, UP, 0.004));
}

TEST_F(solidedge_objects, take_two_loops_only_as_nested_ones) {
    const object_ref profile = new_profile(xy_plane());
    add_circle(profile, 0.005);
    add_circle(profile, 0.003);
    EXPECT_NE(end(profile, CLOSED), 0);
    EXPECT_EQ(end(profile, CLOSED + NESTED), 0);
    protrusion(profile, UP, 0.004);
    EXPECT_NEAR(made.solids().at(0).contour_area(), PI * 16.0, ROUNDING_MM);
}

TEST_F(solidedge_objects, take_the_size_of_an_array_as_its_count_of_points) {
    const object_ref splines = object_of(new_profile(xy_plane()), "BSplineCurves2d");
    const auto add = [&splines](std::int32_t count) {
        splines->get("AddByPointsWithCloseOption",
                     {CUBIC, count, number_array{square_numbers(0.01)}, true});
    };
    EXPECT_FAILURE(add(8), 9);
    EXPECT_FAILURE(add(3), 9);
    EXPECT_NO_THROW(add(4));
    EXPECT_FAILURE(
        splines->get("AddByPointsWithCloseOption",
                     {CUBIC, 4, number_array{{0.0, 0.0, 1.0, 0.0, 0.0, 1.0, 0.0, 0.0}}, true}),
        REFUSED);
    EXPECT_FAILURE(splines->get("AddByPointsWithCloseOption",
                                {3, 4, number_array{square_numbers(0.01)}, true}),
                   REFUSED);
}

TEST_F(solidedge_objects, convert_points_of_the_plane) {
    const object_ref profile = new_profile(xy_plane());
    double x = 0.0, y = 0.0;
    const automation::by_reference to_x{&x}, to_y{&y};
    profile->run("Convert3DCoordinate", {0.01, 0.02, 0.0, to_x, to_y});
    EXPECT_EQ(x, 0.01);
    EXPECT_EQ(y, 0.02);
    EXPECT_FAILURE(profile->run("Convert3DCoordinate", {0.01, 0.02, 0.03, to_x, to_y}), REFUSED);
}

TEST_F(solidedge_objects, join_a_further_protrusion_to_its_model) {
    const object_ref first = protrusion(circle_profile(0.005), UP, 0.004);
    const object_ref protrusions = object_of(first, "ExtrudedProtrusions");
    const object_ref feature = object_of(protrusions, "AddFiniteMulti",
                                         {1, object_array{{circle_profile(0.006)}}, UP, 0.004});
    EXPECT_EQ(as_integer(feature->get("Status")), FEATURE_OK);
    ASSERT_EQ(made.solids().size(), 1U);
    EXPECT_NEAR(made.solids()[0].contour_area(), PI * 36.0, ROUNDING_MM);
    EXPECT_EQ(as_integer(models->get("Count")), 1);
    EXPECT_EQ(as_integer(object_of(first, "Features")->get("Count")), 2);
}

TEST_F(solidedge_objects, know_no_other_members_counts_or_kinds) {
    const object_ref profile = circle_profile(0.005);
    EXPECT_FAILURE(protrusion(profile, 3, 0.004), REFUSED);
    EXPECT_FAILURE(protrusion(profile, UP, 0.0), REFUSED);
    EXPECT_FAILURE(protrusion(xy_plane(), UP, 0.004), automation::WRONG_TYPE);
    EXPECT_FAILURE(
        models->get("AddFiniteExtrudedProtrusion", {2, object_array{{profile}}, UP, 0.004}), 9);
    EXPECT_FAILURE(models->get("AddFiniteExtrudedProtrusion",
                               {1, automation::variant_array{{profile}}, UP, 0.004}),
                   automation::WRONG_TYPE);
    EXPECT_FAILURE(models->get("AddFiniteExtrudedProtrusion", {1, object_array{{profile}}, UP}),
                   450);
    EXPECT_FAILURE(models->get("AddFiniteExtrudedCutout"), automation::UNKNOWN_NAME);
    EXPECT_FAILURE(document->put("ModelingMode", 3), REFUSED);
    EXPECT_NO_THROW(document->put("ModelingMode", 2));
    EXPECT_NO_THROW(object_of(object_of(application, "ActiveWindow"), "View")->run("Fit"));
    EXPECT_NO_THROW(profile->put("Visible", false));
}

TEST_F(solidedge_objects, draw_nothing_into_a_part_that_was_closed) {
    const object_ref profile = circle_profile(0.005);
    made.host.close_document(made.host.documents().at(0).number);
    EXPECT_FAILURE(protrusion(profile, UP, 0.004), REFUSED);
    EXPECT_FAILURE(new_profile(xy_plane()), REFUSED);
    EXPECT_FAILURE(application->get("ActiveDocument"), REFUSED);
    EXPECT_NO_THROW(new_document());
}

}  // namespace kvt
