// What the built-in modeller does in the place of Inventor, call by call.
#include "cad/builtin/inventor_objects.hpp"

#include "automation/automation_error.hpp"
#include "automation/table_object.hpp"
#include "support/cad/test_modeller.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

using automation::as_text;
using automation::object_of;
using automation::object_ref;
using automation::REFUSED;

constexpr double PI = std::numbers::pi;
constexpr double ROUNDING_MM = 1e-9;
constexpr std::int32_t PART = 12290, XY_PLANE = 3, SMOOTH_FIT = 26369;
constexpr std::int32_t UP = 20993, DOWN = 20994, JOIN = 20481, CUT = 20482, NEW_BODY = 20485;

class inventor_objects : public testing::Test {
  protected:
    object_ref new_document() const {
        const std::string file =
            as_text(object_of(application, "FileManager")->get("GetTemplateFile", {PART}));
        return object_of(object_of(application, "Documents"), "Add", {PART, file, true});
    }
    object_ref xy_plane() const { return object_of(planes, "Item", {XY_PLANE}); }
    object_ref new_sketch(const object_ref& plane) const {
        return object_of(object_of(definition, "Sketches"), "Add", {plane});
    }
    object_ref point(double x, double y) const {
        return object_of(object_of(application, "TransientGeometry"), "CreatePoint2d", {x, y});
    }
    /// Centimetres.
    void add_circle(const object_ref& sketch, double x, double radius) const {
        object_of(sketch, "SketchCircles")->get("AddByCenterRadius", {point(x, 0.0), radius});
    }
    object_ref circle_profile(double radius) const {
        const object_ref sketch = new_sketch(xy_plane());
        add_circle(sketch, 0.0, radius);
        return profile(sketch);
    }
    static object_ref profile(const object_ref& sketch) {
        return object_of(object_of(sketch, "Profiles"), "AddForSolid");
    }
    object_ref spline(const object_ref& sketch, const std::vector<point2>& points) const {
        const object_ref collection =
            object_of(object_of(application, "TransientObjects"), "CreateObjectCollection");
        for (const point2 one : points) {
            collection->run("Add", {point(one.x, one.y)});
        }
        return object_of(object_of(sketch, "SketchSplines"), "Add", {collection, SMOOTH_FIT});
    }
    void extrude(const object_ref& of, double distance, std::int32_t direction,
                 std::int32_t operation) const {
        extrusions->get("AddByDistanceExtent", {of, distance, direction, operation});
    }

    test_modeller made;
    object_ref application = made.host.create("inventor.application");
    object_ref document = new_document();
    object_ref definition = object_of(document, "ComponentDefinition");
    object_ref planes = object_of(definition, "WorkPlanes");
    object_ref extrusions = object_of(object_of(definition, "Features"), "ExtrudeFeatures");
};

}  // namespace

TEST_F(inventor_objects, have_a_new_part_a_run_from_the_template_of_parts) {
    EXPECT_EQ(made.host.documents().at(0).name, "Part1");
    new_document();
    EXPECT_EQ(made.host.documents().at(1).name, "Part2");
    EXPECT_FAILURE(object_of(application, "FileManager")->get("GetTemplateFile", {12291}), REFUSED);
    EXPECT_FAILURE(
        object_of(application, "Documents")->get("Add", {PART, std::string("other.ipt"), true}),
        REFUSED);
}

TEST_F(inventor_objects, count_the_planes_from_1) {
    EXPECT_FAILURE(planes->get("Item", {0}), 9);
    EXPECT_FAILURE(planes->get("Item", {4}), 9);
    EXPECT_FAILURE(planes->get("Item", {1}), REFUSED);
    EXPECT_NO_THROW(planes->get("Item", {3}));
}

TEST_F(inventor_objects, extrude_up_and_down_in_centimetres) {
    const object_ref raised = object_of(planes, "AddByPlaneAndOffset", {xy_plane(), 2.0});
    const object_ref sketch = new_sketch(raised);
    add_circle(sketch, 0.1, 0.5);
    EXPECT_EQ(made.curves().size(), 1U);
    const object_ref region = profile(sketch);
    extrude(region, 0.4, UP, JOIN);
    EXPECT_TRUE(made.curves().empty());
    extrude(region, 0.4, DOWN, NEW_BODY);
    ASSERT_EQ(made.solids().size(), 2U);
    EXPECT_NEAR(made.solids()[0].box().highest.x, 6.0, ROUNDING_MM);
    EXPECT_NEAR(made.solids()[0].z0(), 20.0, ROUNDING_MM);
    EXPECT_NEAR(made.solids()[1].z0(), 16.0, ROUNDING_MM);
    EXPECT_NEAR(made.solids()[1].height(), 4.0, ROUNDING_MM);
}

TEST_F(inventor_objects, make_a_spline_periodic_when_it_is_closed) {
    std::vector<point2> circle;
    for (int i = 0; i < 36; ++i) {
        circle.push_back(polar_point(1.0, PI * i / 18.0));
    }
    const object_ref sketch = new_sketch(xy_plane());
    const object_ref curve = spline(sketch, circle);
    EXPECT_FAILURE(profile(sketch), REFUSED);
    curve->put("Closed", true);
    extrude(profile(sketch), 1.0, UP, JOIN);
    EXPECT_NEAR(made.solids().at(0).contour_area() / (PI * 100.0), 1.0, 1e-5);
    circle.push_back(circle.front());
    EXPECT_FAILURE(spline(new_sketch(xy_plane()), circle)->put("Closed", true), REFUSED);
}

TEST_F(inventor_objects, make_a_ring_of_two_nested_paths) {
    const object_ref sketch = new_sketch(xy_plane());
    add_circle(sketch, 0.0, 0.5);
    add_circle(sketch, 0.0, 0.3);
    extrude(profile(sketch), 1.0, UP, JOIN);
    EXPECT_NEAR(made.solids().at(0).contour_area(), PI * 16.0, ROUNDING_MM);
}

TEST_F(inventor_objects, cut_every_body) {
    EXPECT_FAILURE(extrude(circle_profile(0.1), 1.0, UP, CUT), REFUSED);
    extrude(circle_profile(0.5), 1.0, UP, JOIN);
    extrude(circle_profile(0.4), 1.0, UP, NEW_BODY);
    extrude(circle_profile(0.3), 1.0, UP, CUT);
    ASSERT_EQ(made.solids().size(), 2U);
    EXPECT_NEAR(made.solids()[0].contour_area(), PI * 16.0, ROUNDING_MM);
    EXPECT_NEAR(made.solids()[1].contour_area(), PI * 7.0, ROUNDING_MM);
}

TEST_F(inventor_objects, extrude_by_a_definition_too) {
    const object_ref how =
        object_of(extrusions, "CreateExtrudeDefinition", {circle_profile(0.5), JOIN});
    EXPECT_FAILURE(extrusions->get("Add", {how}), REFUSED);
    how->run("SetDistanceExtent", {0.4, DOWN});
    extrusions->get("Add", {how});
    EXPECT_NEAR(made.solids().at(0).z0(), -4.0, ROUNDING_MM);
}

TEST_F(inventor_objects, make_no_profile_while_updates_are_deferred) {
    const object_ref sketch = new_sketch(xy_plane());
    add_circle(sketch, 0.0, 0.5);
    sketch->put("DeferUpdates", true);
    EXPECT_FAILURE(profile(sketch), REFUSED);
    sketch->put("DeferUpdates", false);
    EXPECT_NO_THROW(profile(sketch));
}

TEST_F(inventor_objects, know_no_other_members_counts_or_kinds) {
    const object_ref region = circle_profile(0.5);
    EXPECT_FAILURE(extrude(region, 1.0, 20995, JOIN), REFUSED);
    EXPECT_FAILURE(extrude(region, 0.0, UP, JOIN), REFUSED);
    EXPECT_FAILURE(extrude(region, 1.0, UP, 20483), REFUSED);
    EXPECT_FAILURE(extrusions->get("AddByDistanceExtent", {region, 1.0, UP}), 450);
    EXPECT_FAILURE(extrusions->get("AddByDistanceExtent", {region, 1, UP, JOIN}),
                   automation::WRONG_TYPE);
    EXPECT_FAILURE(extrusions->get("AddByDistanceExtent", {xy_plane(), 1.0, UP, JOIN}),
                   automation::WRONG_TYPE);
    EXPECT_FAILURE(definition->get("SurfaceBodies"), automation::UNKNOWN_NAME);
    EXPECT_NO_THROW(object_of(application, "ActiveView")->run("Fit"));
    EXPECT_NO_THROW(document->get("UnitsOfMeasure"));
}

TEST_F(inventor_objects, draw_nothing_into_a_part_that_was_closed) {
    const object_ref region = circle_profile(0.5);
    made.host.close_document(made.host.documents().at(0).number);
    EXPECT_FAILURE(extrude(region, 1.0, UP, JOIN), REFUSED);
    EXPECT_FAILURE(new_sketch(xy_plane()), REFUSED);
    EXPECT_NO_THROW(new_document());
}

}  // namespace kvt
