// What the built-in modeller does in the place of SolidWorks, call by call.
#include "cad/builtin/solidworks_objects.hpp"

#include "automation/automation_error.hpp"
#include "automation/table_object.hpp"
#include "support/cad/test_modeller.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

using automation::as_bool;
using automation::as_text;
using automation::nothing;
using automation::number_array;
using automation::object_of;
using automation::object_ref;
using automation::REFUSED;
using automation::value;
using automation::values;

constexpr double PI = std::numbers::pi;
constexpr double ROUNDING_MM = 1e-9;
constexpr std::int32_t PART_TEMPLATE = 8, FROM_PLANE = 0, FROM_OFFSET = 3;
/// The order of an extrusion's arguments, from 0.
constexpr std::size_t DOWNWARDS = 2, DEPTH = 5, MERGES = 17, START_KIND = 20, START = 21;

/// A blind boss of 4 mm.
values plain_extrusion() {
    return {true, false, false, 0,     0,     0.004, 0.0,  false, false,      false, false, 0.0,
            0.0,  false, false, false, false, true,  true, true,  FROM_PLANE, 0.0,   false};
}
values plain_extrusion_but(std::size_t place, value argument) {
    values arguments = plain_extrusion();
    arguments.at(place) = std::move(argument);
    return arguments;
}

class solidworks_objects : public testing::Test {
  protected:
    object_ref new_model() const {
        const std::string file =
            as_text(application->get("GetUserPreferenceStringValue", {PART_TEMPLATE}));
        return object_of(application, "NewDocument", {file, 0, 0.0, 0.0});
    }
    object_ref plane(int number) const {
        object_ref feature = object_of(model, "FirstFeature");
        for (int left = number; true; feature = object_of(feature, "GetNextFeature")) {
            if (as_text(feature->get("GetTypeName2")) == "RefPlane" && --left == 0) {
                return feature;
            }
        }
    }
    void open_sketch() const {
        plane(1)->get("Select2", {false, 0});
        sketches->run("InsertSketch", {true});
        sketches->put("AddToDB", true);
    }
    void close_sketch() const {
        sketches->put("AddToDB", false);
        sketches->run("InsertSketch", {true});
        object_of(model, "FeatureByPositionReverse", {0})->get("Select2", {false, 0});
    }
    /// Metres.
    value circle(double x, double radius) const {
        return sketches->get("CreateCircleByRadius", {x, 0.0, 0.0, radius});
    }
    void sketch_circle(double x, double radius) const {
        open_sketch();
        circle(x, radius);
        close_sketch();
    }
    value extrude(const values& arguments) const {
        return features->get("FeatureExtrusion3", arguments);
    }
    bool is_extruded(const values& arguments) const {
        return std::holds_alternative<object_ref>(extrude(arguments));
    }

    test_modeller made;
    object_ref application = made.host.create("sldworks.application");
    object_ref model = new_model();
    object_ref sketches = object_of(model, "SketchManager");
    object_ref features = object_of(model, "FeatureManager");
};

}  // namespace

TEST_F(solidworks_objects, have_a_new_part_a_run_from_the_template_of_parts) {
    EXPECT_NE(new_model(), model);
    ASSERT_EQ(made.host.documents().size(), 2U);
    EXPECT_EQ(made.host.documents()[1].name, "Part2");
    EXPECT_EQ(as_text(application->get("GetUserPreferenceStringValue", {9})), "");
    EXPECT_TRUE(std::holds_alternative<nothing>(
        application->get("NewDocument", {std::string(), 0, 0.0, 0.0})));
}

TEST_F(solidworks_objects, sketch_on_the_front_plane_alone) {
    EXPECT_FAILURE(sketches->run("InsertSketch", {true}), REFUSED);
    EXPECT_TRUE(as_bool(plane(2)->get("Select2", {false, 0})));
    EXPECT_FAILURE(sketches->run("InsertSketch", {true}), REFUSED);
    EXPECT_TRUE(std::holds_alternative<nothing>(
        sketches->get("CreateSpline2", {number_array{{0.0, 0.0, 0.0, 1.0, 0.0, 0.0}}, false})));
    open_sketch();
    sketches->put("AddToDB", false);
    EXPECT_FAILURE(circle(0.0, 0.001), REFUSED);
}

TEST_F(solidworks_objects, extrude_the_selected_sketch_in_metres) {
    sketch_circle(0.001, 0.005);
    EXPECT_EQ(made.curves().size(), 1U);
    EXPECT_TRUE(is_extruded(plain_extrusion()));
    EXPECT_TRUE(made.curves().empty());
    ASSERT_EQ(made.solids().size(), 1U);
    const model_box box = made.solids()[0].box();
    EXPECT_NEAR(box.lowest.x, -4.0, ROUNDING_MM);
    EXPECT_NEAR(box.highest.x, 6.0, ROUNDING_MM);
    EXPECT_NEAR(box.lowest.z, 0.0, ROUNDING_MM);
    EXPECT_NEAR(box.highest.z, 4.0, ROUNDING_MM);
    EXPECT_FALSE(is_extruded(plain_extrusion())) << "nothing is selected any more";
}

TEST_F(solidworks_objects, extrude_nothing_that_is_open_or_not_selected) {
    open_sketch();
    circle(0.0, 0.005);
    EXPECT_FALSE(is_extruded(plain_extrusion())) << "the sketch is open";
    close_sketch();
    model->run("ClearSelection2", {true});
    EXPECT_FALSE(is_extruded(plain_extrusion())) << "nothing is selected";
    plane(1)->get("Select2", {false, 0});
    EXPECT_FALSE(is_extruded(plain_extrusion())) << "a plane is selected";
    EXPECT_TRUE(made.solids().empty());
}

TEST_F(solidworks_objects, answer_no_feature_for_an_open_contour) {
    open_sketch();
    sketches->get("CreateSpline2",
                  {number_array{{0.0, 0.0, 0.0, 0.01, 0.0, 0.0, 0.0, 0.01, 0.0}}, false});
    close_sketch();
    EXPECT_FALSE(is_extruded(plain_extrusion()));
    EXPECT_TRUE(made.solids().empty());
    EXPECT_EQ(made.curves().size(), 1U) << "the sketch stays";
}

TEST_F(solidworks_objects, close_a_spline_by_its_first_point_given_again) {
    open_sketch();
    sketches->get("CreateSpline2", {number_array{{0.0, 0.0, 0.0, 0.01, 0.0, 0.0, 0.01, 0.01, 0.0,
                                                  0.0, 0.01, 0.0, 0.0, 0.0, 0.0}},
                                    false});
    close_sketch();
    EXPECT_TRUE(is_extruded(plain_extrusion()));
    EXPECT_GT(made.solids().at(0).contour_area(), 100.0);
}

TEST_F(solidworks_objects, make_a_ring_of_nested_contours) {
    open_sketch();
    circle(0.0, 0.005);
    circle(0.0, 0.003);
    close_sketch();
    EXPECT_TRUE(is_extruded(plain_extrusion()));
    EXPECT_NEAR(made.solids().at(0).contour_area(), PI * 16.0, ROUNDING_MM);
}

TEST_F(solidworks_objects, merge_a_feature_with_what_it_meets_or_keep_it_apart) {
    sketch_circle(0.0, 0.005);
    extrude(plain_extrusion());
    sketch_circle(0.0, 0.003);
    extrude(plain_extrusion_but(MERGES, true));
    EXPECT_EQ(made.solids().size(), 1U);
    sketch_circle(0.0, 0.003);
    extrude(plain_extrusion_but(MERGES, false));
    EXPECT_EQ(made.solids().size(), 2U);
}

TEST_F(solidworks_objects, start_at_an_offset_and_go_down) {
    sketch_circle(0.0, 0.005);
    values offset = plain_extrusion_but(START, 0.01);
    offset[START_KIND] = FROM_OFFSET;
    EXPECT_TRUE(is_extruded(offset));
    EXPECT_NEAR(made.solids().at(0).z0(), 10.0, ROUNDING_MM);
    sketch_circle(0.02, 0.005);
    EXPECT_TRUE(is_extruded(plain_extrusion_but(DOWNWARDS, true)));
    EXPECT_NEAR(made.solids().at(1).z0(), -4.0, ROUNDING_MM);
    EXPECT_NEAR(made.solids().at(1).height(), 4.0, ROUNDING_MM);
}

TEST_F(solidworks_objects, know_no_other_extrusions_members_counts_or_kinds) {
    sketch_circle(0.0, 0.005);
    EXPECT_FAILURE(extrude(plain_extrusion_but(0, false)), REFUSED);
    EXPECT_FAILURE(extrude(plain_extrusion_but(7, true)), REFUSED);
    EXPECT_FAILURE(extrude(plain_extrusion_but(START_KIND, 1)), REFUSED);
    EXPECT_FAILURE(extrude(plain_extrusion_but(DEPTH, 4)), automation::WRONG_TYPE);
    EXPECT_FALSE(is_extruded(plain_extrusion_but(DEPTH, 0.0)));
    EXPECT_FAILURE(features->get("FeatureExtrusion3", {true}), 450);
    EXPECT_FAILURE(features->get("FeatureExtrusion2", plain_extrusion()), automation::UNKNOWN_NAME);
    EXPECT_FAILURE(sketches->get("CreateCircleByRadius", {0.0, 0.0, 0, 0.1}),
                   automation::WRONG_TYPE);
    EXPECT_NO_THROW(application->put("UserControl", true));
    EXPECT_NO_THROW(model->run("ViewZoomtofit2"));
}

TEST_F(solidworks_objects, draw_nothing_into_a_part_that_was_closed) {
    sketch_circle(0.0, 0.005);
    made.host.close_document(made.host.documents().at(0).number);
    EXPECT_FAILURE(extrude(plain_extrusion()), REFUSED);
    EXPECT_NE(new_model(), nullptr);
}

}  // namespace kvt
