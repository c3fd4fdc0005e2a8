// What the built-in modeller does in the place of AutoCAD, call by call.
#include "cad/builtin/autocad_objects.hpp"

#include "automation/automation_error.hpp"
#include "automation/table_object.hpp"
#include "support/cad/test_modeller.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

using automation::as_objects;
using automation::number_array;
using automation::object_array;
using automation::object_of;
using automation::object_ref;
using automation::REFUSED;

constexpr double PI = std::numbers::pi;
constexpr double ROUNDING = 1e-9;
constexpr std::int32_t UNION = 0, INTERSECTION = 1, SUBTRACTION = 2, EVERYTHING = 5;
constexpr double NO_TAPER = 0.0;

number_array at(double x, double y, double z) {
    return {{x, y, z}};
}

class autocad_objects : public testing::Test {
  protected:
    object_ref polyline(std::vector<double> numbers, bool closed) const {
        object_ref line =
            object_of(space, "AddLightWeightPolyline", {number_array{std::move(numbers)}});
        line->put("Closed", closed);
        return line;
    }
    object_ref region(const object_ref& curve) const {
        return as_objects(space->get("AddRegion", {object_array{{curve}}})).at(0);
    }
    /// A square prism; what it was made of is deleted.
    object_ref block(double half_side, double height) const {
        const object_ref line = polyline(square_numbers(half_side), true);
        const object_ref inside = region(line);
        object_ref solid = object_of(space, "AddExtrudedSolid", {inside, height, NO_TAPER});
        inside->run("Delete");
        line->run("Delete");
        return solid;
    }
    object_ref cylinder(double x, double radius, double height) const {
        return object_of(space, "AddCylinder", {at(x, 0.0, 0.0), radius, height});
    }
    static void expect_box(const object_ref& solid, point3 lowest, point3 highest) {
        std::vector<double> low, high;
        solid->run("GetBoundingBox", {automation::by_reference_numbers{&low},
                                      automation::by_reference_numbers{&high}});
        EXPECT_NEAR(low.at(0), lowest.x, ROUNDING);
        EXPECT_NEAR(low.at(1), lowest.y, ROUNDING);
        EXPECT_NEAR(low.at(2), lowest.z, ROUNDING);
        EXPECT_NEAR(high.at(0), highest.x, ROUNDING);
        EXPECT_NEAR(high.at(1), highest.y, ROUNDING);
        EXPECT_NEAR(high.at(2), highest.z, ROUNDING);
    }
    /// Of the only solid of the drawing.
    double volume() const { return made.bodies().at(0).volume(); }

    test_modeller made;
    object_ref application = made.host.create("AutoCAD.Application");
    object_ref drawing = object_of(application, "ActiveDocument");
    object_ref space = object_of(drawing, "ModelSpace");
    object_ref sets = object_of(drawing, "SelectionSets");
};

}  // namespace

TEST_F(autocad_objects, take_the_points_of_a_polyline_in_pairs_and_at_least_two) {
    const auto points = [this](std::vector<double> numbers) {
        return space->get("AddLightWeightPolyline", {number_array{std::move(numbers)}});
    };
    EXPECT_FAILURE(points({0.0, 0.0, 1.0, 0.0, 1.0}), automation::WRONG_TYPE);
    EXPECT_FAILURE(points({0.0, 0.0}), automation::WRONG_TYPE);
    EXPECT_NO_THROW(points({0.0, 0.0, 1.0, 0.0}));
    EXPECT_EQ(made.curves().size(), 1U);
}

TEST_F(autocad_objects, make_no_region_of_an_open_or_a_crossing_curve) {
    EXPECT_FAILURE(region(polyline(square_numbers(1.0), false)), automation::AUTOMATION_FAILED);
    EXPECT_FAILURE(region(polyline({0.0, 0.0, 1.0, 1.0, 1.0, 0.0, 0.0, 1.0}, true)),
                   automation::AUTOMATION_FAILED);
    EXPECT_FAILURE(polyline({0.0, 0.0, 1.0, 0.0, 1.0, 1.0, 0.0, 0.0}, true), REFUSED);
}

TEST_F(autocad_objects, extrude_up_and_down_and_leave_the_curve) {
    const object_ref line = polyline(square_numbers(2.0), true);
    const object_ref inside = region(line);
    expect_box(object_of(space, "AddExtrudedSolid", {inside, 3.0, NO_TAPER}), {-2.0, -2.0, 0.0},
               {2.0, 2.0, 3.0});
    expect_box(object_of(space, "AddExtrudedSolid", {inside, -3.0, NO_TAPER}), {-2.0, -2.0, -3.0},
               {2.0, 2.0, 0.0});
    EXPECT_EQ(made.curves().size(), 1U);
    EXPECT_FAILURE(space->get("AddExtrudedSolid", {inside, 3.0, 0.1}), REFUSED);
    EXPECT_FAILURE(space->get("AddExtrudedSolid", {inside, 0.0, NO_TAPER}), REFUSED);
    EXPECT_FAILURE(space->get("AddExtrudedSolid", {line, 3.0, NO_TAPER}), automation::WRONG_TYPE);
    inside->run("Delete");
    EXPECT_FAILURE(space->get("AddExtrudedSolid", {inside, 3.0, NO_TAPER}), REFUSED);
}

TEST_F(autocad_objects, put_the_centre_of_a_cylinder_at_mid_height) {
    expect_box(object_of(space, "AddCylinder", {at(1.0, 2.0, 3.0), 5.0, 4.0}), {-4.0, -3.0, 1.0},
               {6.0, 7.0, 5.0});
    EXPECT_FAILURE(space->get("AddCylinder", {at(0.0, 0.0, 0.0), 0.0, 4.0}), REFUSED);
    EXPECT_FAILURE(space->get("AddCylinder", {at(0.0, 0.0, 0.0), 5.0, -4.0}), REFUSED);
}

TEST_F(autocad_objects, consume_the_second_solid_of_a_boolean) {
    const object_ref disc = cylinder(0.0, 5.0, 2.0), bore = cylinder(0.0, 3.0, 4.0);
    disc->run("Boolean", {SUBTRACTION, bore});
    ASSERT_EQ(made.bodies().size(), 1U);
    EXPECT_NEAR(volume(), PI * (25.0 - 9.0) * 2.0, ROUNDING);
    EXPECT_FAILURE(bore->run("Move", {at(0.0, 0.0, 0.0), at(1.0, 0.0, 0.0)}), REFUSED);
    EXPECT_FAILURE(disc->run("Boolean", {SUBTRACTION, bore}), REFUSED);
    EXPECT_FAILURE(disc->run("Boolean", {SUBTRACTION, disc}), REFUSED);
}

TEST_F(autocad_objects, join_and_intersect_solids) {
    const object_ref disc = cylinder(0.0, 5.0, 2.0);
    disc->run("Boolean", {INTERSECTION, cylinder(0.0, 3.0, 4.0)});
    EXPECT_NEAR(volume(), PI * 9.0 * 2.0, ROUNDING);
    disc->run("Boolean", {UNION, cylinder(0.0, 4.0, 2.0)});
    EXPECT_EQ(made.bodies().size(), 1U);
    EXPECT_NEAR(volume(), PI * 16.0 * 2.0, ROUNDING);
    EXPECT_FAILURE(disc->run("Boolean", {3, block(1.0, 1.0)}), REFUSED);
}

TEST_F(autocad_objects, keep_the_first_solid_of_a_boolean_that_fails) {
    const object_ref disc = cylinder(0.0, 5.0, 2.0);
    const object_ref far = cylinder(20.0, 1.0, 2.0);
    EXPECT_FAILURE(disc->run("Boolean", {INTERSECTION, far}), automation::AUTOMATION_FAILED);
    EXPECT_EQ(made.bodies().size(), 2U);
    expect_box(disc, {-5.0, -5.0, -1.0}, {5.0, 5.0, 1.0});
}

TEST_F(autocad_objects, keep_the_positive_part_of_a_slice_and_answer_the_negative_one) {
    const object_ref solid = block(2.0, 3.0);
    // (P2 - P1) x (P3 - P1) is x times z, which points to -y.
    const object_ref other = object_of(
        solid, "SliceSolid", {at(0.0, 1.0, 0.0), at(1.0, 1.0, 0.0), at(0.0, 1.0, 1.0), true});
    expect_box(solid, {-2.0, -2.0, 0.0}, {2.0, 1.0, 3.0});
    expect_box(other, {-2.0, 1.0, 0.0}, {2.0, 2.0, 3.0});
    EXPECT_FAILURE(
        solid->get("SliceSolid", {at(0.0, 0.0, 0.0), at(1.0, 0.0, 0.0), at(0.0, 0.0, 1.0), false}),
        REFUSED);
}

TEST_F(autocad_objects, turn_the_copies_of_a_polar_array_and_answer_all_but_the_first) {
    const object_ref solid = cylinder(10.0, 1.0, 2.0);
    solid->run("Boolean", {UNION, cylinder(11.0, 1.0, 2.0)});
    const std::vector<object_ref> copies =
        as_objects(solid->get("ArrayPolar", {4, 2.0 * PI, at(0.0, 0.0, 0.0)}));
    ASSERT_EQ(copies.size(), 3U);
    expect_box(solid, {9.0, -1.0, -1.0}, {12.0, 1.0, 1.0});
    expect_box(copies[0], {-1.0, 9.0, -1.0}, {1.0, 12.0, 1.0});
    expect_box(copies[1], {-12.0, -1.0, -1.0}, {-9.0, 1.0, 1.0});
    EXPECT_EQ(made.bodies().size(), 4U);
    EXPECT_FAILURE(solid->get("ArrayPolar", {1, 2.0 * PI, at(0.0, 0.0, 0.0)}), REFUSED);
    EXPECT_FAILURE(solid->get("ArrayPolar", {4, 0.0, at(0.0, 0.0, 0.0)}), REFUSED);
}

TEST_F(autocad_objects, move_turn_copy_and_mirror_solids) {
    const object_ref solid = cylinder(10.0, 1.0, 2.0);
    solid->run("Move", {at(1.0, 2.0, 3.0), at(2.0, 4.0, 6.0)});
    expect_box(solid, {10.0, 1.0, 2.0}, {12.0, 3.0, 4.0});
    const object_ref copy = object_of(solid, "Copy");
    copy->run("Rotate3D", {at(0.0, 0.0, 0.0), at(0.0, 0.0, 1.0), PI / 2.0});
    expect_box(copy, {-3.0, 10.0, 2.0}, {-1.0, 12.0, 4.0});
    copy->run("Rotate3D", {at(0.0, 0.0, 0.0), at(0.0, 0.0, -1.0), PI / 2.0});
    expect_box(copy, {10.0, 1.0, 2.0}, {12.0, 3.0, 4.0});
    EXPECT_FAILURE(copy->run("Rotate3D", {at(0.0, 0.0, 0.0), at(1.0, 0.0, 0.0), PI}), REFUSED);
    const object_ref image =
        object_of(solid, "Mirror3D", {at(0.0, 0.0, 1.0), at(1.0, 0.0, 1.0), at(0.0, 1.0, 1.0)});
    expect_box(image, {10.0, 1.0, -2.0}, {12.0, 3.0, 0.0});
    expect_box(solid, {10.0, 1.0, 2.0}, {12.0, 3.0, 4.0});
    solid->run("Delete");
    EXPECT_FAILURE(solid->get("Copy"), REFUSED);
    EXPECT_FAILURE(solid->run("Delete"), REFUSED);
}

TEST_F(autocad_objects, have_a_selection_set_of_a_name_once) {
    EXPECT_FAILURE(sets->get("Item", {std::string("KVT")}), REFUSED);
    const object_ref set = object_of(sets, "Add", {std::string("KVT")});
    EXPECT_FAILURE(sets->get("Add", {std::string("KVT")}), REFUSED);
    set->run("Select", {EVERYTHING});
    EXPECT_FAILURE(set->run("Select", {4}), REFUSED);
    object_of(sets, "Item", {std::string("KVT")})->run("Delete");
    EXPECT_FAILURE(set->run("Select", {EVERYTHING}), REFUSED);
    EXPECT_NO_THROW(sets->get("Add", {std::string("KVT")}));
}

TEST_F(autocad_objects, draw_in_the_unit_of_the_design) {
    made.host.set_drawing_unit(25.4);
    const object_ref solid = block(1.0, 2.0);
    expect_box(solid, {-1.0, -1.0, 0.0}, {1.0, 1.0, 2.0});
    EXPECT_NEAR(volume(), 50.8 * 50.8 * 50.8, 1e-6) << "mm^3";
    made.host.set_drawing_unit(1.0);
    block(1.0, 2.0);
    EXPECT_NEAR(made.bodies().at(0).height, 50.8, ROUNDING);
    EXPECT_NEAR(made.bodies().at(1).height, 2.0, ROUNDING);
}

TEST_F(autocad_objects, add_to_the_one_drawing_until_it_is_closed) {
    block(1.0, 1.0);
    const object_ref again = made.host.create("autocad.application");
    EXPECT_EQ(again, application);
    const object_ref other_space =
        object_of(object_of(object_of(again, "Documents"), "Add"), "ModelSpace");
    object_of(other_space, "AddCylinder", {at(0.0, 0.0, 0.0), 1.0, 1.0});
    ASSERT_EQ(made.host.documents().size(), 1U);
    EXPECT_EQ(made.host.documents()[0].name, "Drawing1");
    EXPECT_EQ(made.bodies().size(), 2U);
}

TEST_F(autocad_objects, have_a_new_empty_drawing_once_theirs_was_closed) {
    const object_ref solid = block(1.0, 1.0);
    sets->run("Add", {std::string("KVT")});
    made.host.close_document(made.host.documents().at(0).number);
    EXPECT_FAILURE(solid->get("Copy"), REFUSED);
    EXPECT_FAILURE(cylinder(0.0, 1.0, 1.0), REFUSED);
    EXPECT_FAILURE(sets->get("Add", {std::string("more")}), REFUSED);
    const object_ref opened = object_of(application, "ActiveDocument");
    EXPECT_TRUE(made.bodies().empty());
    EXPECT_NO_THROW(object_of(opened, "SelectionSets")->get("Add", {std::string("KVT")}));
    EXPECT_EQ(made.host.documents().at(0).name, "Drawing1");
}

TEST_F(autocad_objects, know_no_other_members_counts_or_kinds) {
    const object_ref solid = block(1.0, 1.0);
    EXPECT_FAILURE(solid->get("Volume"), automation::UNKNOWN_NAME);
    EXPECT_FAILURE(object_of(drawing, "ActiveViewport")->run("ZoomExtents"),
                   automation::UNKNOWN_NAME);
    EXPECT_FAILURE(space->get("AddCylinder", {at(0.0, 0.0, 0.0), 1.0}), 450);
    EXPECT_FAILURE(space->get("AddCylinder", {at(0.0, 0.0, 0.0), 1, 1.0}), automation::WRONG_TYPE);
    EXPECT_FAILURE(space->get("AddCylinder", {number_array{{0.0, 0.0}}, 1.0, 1.0}),
                   automation::WRONG_TYPE);
    EXPECT_NO_THROW(application->put("Visible", true));
    EXPECT_NO_THROW(application->run("ZoomExtents"));
}

}  // namespace kvt
