// What the built-in modeller does in the place of CATIA, call by call.
#include "cad/builtin/catia_objects.hpp"

#include "automation/automation_error.hpp"
#include "automation/table_object.hpp"
#include "support/cad/test_modeller.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

using automation::object_of;
using automation::object_ref;
using automation::REFUSED;
using automation::variant_array;

constexpr double PI = std::numbers::pi;
constexpr double ROUNDING = 1e-9;
constexpr std::int32_t INVERSE = 1;

class catia_objects : public testing::Test {
  protected:
    object_ref new_part() const {
        return object_of(
            object_of(object_of(application, "Documents"), "Add", {std::string("Part")}), "Part");
    }
    object_ref reference_to(const object_ref& plane) const {
        return object_of(part, "CreateReferenceFromObject", {plane});
    }
    object_ref xy_plane() const {
        return reference_to(object_of(object_of(part, "OriginElements"), "PlaneXY"));
    }
    object_ref first_body() const { return object_of(bodies, "Item", {1}); }
    object_ref new_sketch(const object_ref& body) const {
        return object_of(object_of(body, "Sketches"), "Add", {xy_plane()});
    }
    static void add_circle(const object_ref& factory, double radius) {
        factory->get("CreateClosedCircle", {0.0, 0.0, radius});
    }
    object_ref circle_sketch(const object_ref& body, double radius) const {
        object_ref sketch = new_sketch(body);
        add_circle(object_of(sketch, "OpenEdition"), radius);
        sketch->run("CloseEdition");
        return sketch;
    }
    /// A spline through four points; closed by the first of them as the last.
    object_ref spline_sketch(bool closed) const {
        object_ref sketch = new_sketch(first_body());
        const object_ref factory = object_of(sketch, "OpenEdition");
        variant_array points;
        for (const point2 at : {point2{2.0, 2.0}, {-2.0, 2.0}, {-2.0, -2.0}, {2.0, -2.0}}) {
            points.objects.push_back(object_of(factory, "CreateControlPoint", {at.x, at.y}));
        }
        points.objects.push_back(closed ? points.objects.front()
                                        : object_of(factory, "CreateControlPoint", {2.0, 2.0}));
        points.objects.resize(closed ? 5 : 4);
        factory->get("CreateSpline", {points});
        sketch->run("CloseEdition");
        return sketch;
    }
    object_ref pad(const object_ref& sketch, double height) const {
        return object_of(object_of(part, "ShapeFactory"), "AddNewPad", {sketch, height});
    }

    test_modeller made;
    object_ref application = made.host.create("catia.application");
    object_ref part = new_part();
    object_ref bodies = object_of(part, "Bodies");
};

}  // namespace

TEST_F(catia_objects, have_a_new_part_a_run) {
    new_part();
    EXPECT_EQ(made.host.documents().at(1).name, "Part2");
    EXPECT_FAILURE(object_of(application, "Documents")->get("Add", {std::string("Product")}),
                   REFUSED);
}

TEST_F(catia_objects, pad_no_sketch_that_is_being_edited) {
    const object_ref sketch = new_sketch(first_body());
    const object_ref factory = object_of(sketch, "OpenEdition");
    add_circle(factory, 5.0);
    EXPECT_FAILURE(pad(sketch, 4.0), REFUSED);
    sketch->run("CloseEdition");
    EXPECT_NO_THROW(pad(sketch, 4.0));
    EXPECT_FAILURE(add_circle(factory, 3.0), REFUSED);
    EXPECT_FAILURE(factory->get("CreateControlPoint", {0.0, 0.0}), REFUSED);
}

TEST_F(catia_objects, build_a_pad_at_an_update_up_or_down) {
    const object_ref made_pad = pad(circle_sketch(first_body(), 5.0), 4.0);
    EXPECT_TRUE(made.solids().empty());
    part->run("UpdateObject", {made_pad});
    ASSERT_EQ(made.solids().size(), 1U);
    EXPECT_TRUE(made.curves().empty());
    EXPECT_DOUBLE_EQ(made.solids()[0].z0(), 0.0);
    made_pad->put("DirectionOrientation", INVERSE);
    part->run("Update");
    ASSERT_EQ(made.solids().size(), 1U);
    EXPECT_DOUBLE_EQ(made.solids()[0].z0(), -4.0);
    EXPECT_DOUBLE_EQ(made.solids()[0].height(), 4.0);
    EXPECT_FAILURE(made_pad->put("DirectionOrientation", 2), REFUSED);
}

TEST_F(catia_objects, fail_at_the_update_for_an_open_contour) {
    const object_ref made_pad = pad(spline_sketch(false), 4.0);
    EXPECT_FAILURE(part->run("UpdateObject", {made_pad}), REFUSED);
    EXPECT_FAILURE(part->run("Update"), REFUSED);
    EXPECT_TRUE(made.solids().empty());
}

TEST_F(catia_objects, close_a_spline_by_its_first_point_object_given_again) {
    part->run("UpdateObject", {pad(spline_sketch(true), 4.0)});
    EXPECT_GT(made.solids().at(0).contour_area(), 16.0);
}

TEST_F(catia_objects, make_a_ring_of_nested_contours) {
    const object_ref sketch = new_sketch(first_body());
    const object_ref factory = object_of(sketch, "OpenEdition");
    add_circle(factory, 3.0);
    add_circle(factory, 5.0);
    sketch->run("CloseEdition");
    part->run("UpdateObject", {pad(sketch, 1.0)});
    EXPECT_NEAR(made.solids().at(0).contour_area(), PI * 16.0, ROUNDING);
}

TEST_F(catia_objects, put_a_pad_into_the_body_in_work) {
    const object_ref second = object_of(bodies, "Add");
    pad(circle_sketch(second, 5.0), 4.0);
    part->put("InWorkObject", first_body());
    pad(circle_sketch(first_body(), 3.0), 4.0);
    pad(circle_sketch(first_body(), 2.0), 4.0);
    part->run("Update");
    ASSERT_EQ(made.solids().size(), 2U) << "two pads in one body are one solid";
    EXPECT_NEAR(made.solids()[0].contour_area(), PI * 9.0, ROUNDING);
    EXPECT_NEAR(made.solids()[1].contour_area(), PI * 25.0, ROUNDING);
    EXPECT_FAILURE(bodies->get("Item", {0}), 9);
    EXPECT_FAILURE(bodies->get("Item", {3}), 9);
}

TEST_F(catia_objects, sketch_on_a_plane_at_an_offset) {
    const object_ref plane = object_of(object_of(part, "HybridShapeFactory"), "AddNewPlaneOffset",
                                       {xy_plane(), 10.0, false});
    object_of(object_of(part, "HybridBodies"), "Add")->run("AppendHybridShape", {plane});
    part->put("InWorkObject", plane);
    part->run("Update");
    const object_ref sketch =
        object_of(object_of(first_body(), "Sketches"), "Add", {reference_to(plane)});
    add_circle(object_of(sketch, "OpenEdition"), 5.0);
    sketch->run("CloseEdition");
    EXPECT_FAILURE(pad(sketch, 4.0), REFUSED);  // no body is in work
    part->put("InWorkObject", first_body());
    part->run("UpdateObject", {pad(sketch, 4.0)});
    EXPECT_DOUBLE_EQ(made.solids().at(0).z0(), 10.0);
}

TEST_F(catia_objects, know_no_other_members_counts_or_kinds) {
    const object_ref sketch = circle_sketch(first_body(), 5.0);
    const object_ref shapes = object_of(part, "ShapeFactory");
    EXPECT_FAILURE(shapes->get("AddNewPocket", {sketch, 4.0}), automation::UNKNOWN_NAME);
    EXPECT_FAILURE(shapes->get("AddNewPad", {sketch}), 450);
    EXPECT_FAILURE(shapes->get("AddNewPad", {sketch, 4}), automation::WRONG_TYPE);
    EXPECT_FAILURE(shapes->get("AddNewPad", {first_body(), 4.0}), automation::WRONG_TYPE);
    EXPECT_FAILURE(pad(sketch, 0.0), REFUSED);
    EXPECT_FAILURE(part->put("InWorkObject", sketch), automation::WRONG_TYPE);
    EXPECT_NO_THROW(application->put("DisplayFileAlerts", false));
    EXPECT_NO_THROW(application->put("RefreshDisplay", true));
    EXPECT_NO_THROW(
        object_of(object_of(application, "ActiveWindow"), "ActiveViewer")->run("Reframe"));
}

TEST_F(catia_objects, draw_nothing_into_a_part_that_was_closed) {
    const object_ref made_pad = pad(circle_sketch(first_body(), 5.0), 4.0);
    const object_ref body = first_body();
    made.host.close_document(made.host.documents().at(0).number);
    EXPECT_FAILURE(part->run("UpdateObject", {made_pad}), REFUSED);
    EXPECT_FAILURE(new_sketch(body), REFUSED);
    EXPECT_NO_THROW(new_part());
}

}  // namespace kvt
