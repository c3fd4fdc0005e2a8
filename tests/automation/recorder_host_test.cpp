#include "automation/recorder_host.hpp"

#include "automation/answer.hpp"
#include "automation/automation_error.hpp"
#include "automation/connect.hpp"

#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

constexpr const char* PACKAGE = "autocad.application";

TEST(recorder_host, writes_a_line_a_call) {
    recorder_host programs;
    const object_ref application = connect(programs, PACKAGE);
    application->put("Visible", true);
    const object_ref space = object_of(object_of(application, "ActiveDocument"), "ModelSpace");
    const object_ref body =
        object_of(space, "AddCylinder", {number_array{{-2.5, 0.0, 7.5}}, 21.5, 30.0});
    const object_ref tool = object_of(space, "AddCylinder", {number_array{{0.0}}, 1.0 / 3.0, 1.0});
    body->run("Boolean", {std::int32_t{2}, tool});
    body->run("Delete");
    EXPECT_EQ(programs.log(),
              "running autocad.application: none\n"
              "#1 = create autocad.application\n"
              "#1.Visible = true\n"
              "#2 = #1.ActiveDocument\n"
              "#3 = #2.ModelSpace\n"
              "#4 = #3.AddCylinder([-2.5, 0, 7.5], 21.5, 30)\n"
              "#5 = #3.AddCylinder([0], 0.333333333333333, 1)\n"
              "#4.Boolean(2, #5)\n"
              "#4.Delete\n");
}

TEST(recorder_host, answers_the_same_object_for_a_property_and_a_new_one_for_what_is_made) {
    recorder_host programs;
    const object_ref application = programs.create(PACKAGE);
    EXPECT_EQ(object_of(application, "Documents"), object_of(application, "Documents"));
    const object_ref documents = object_of(application, "Documents");
    EXPECT_NE(object_of(documents, "Add"), object_of(documents, "Add"));
    EXPECT_NE(object_of(application, "CreateObjectCollection"),
              object_of(application, "CreateObjectCollection"));
    EXPECT_NE(object_of(documents, "Open", {1.0}), object_of(documents, "Open", {1.0}));
}

TEST(recorder_host, answers_arrays_whose_elements_have_numbers) {
    recorder_host programs;
    const object_ref space = programs.create(PACKAGE);
    const auto regions = as_objects(space->get("AddRegion", {object_array{{space}}}));
    ASSERT_EQ(regions.size(), 1U);
    EXPECT_EQ(recorder_host::number_of(regions[0]), 2U);
    const auto copies = as_objects(regions[0]->get("ArrayPolar", {std::int32_t{7}, 6.0}));
    ASSERT_EQ(copies.size(), 6U);
    EXPECT_EQ(recorder_host::number_of(copies[5]), 8U);
    EXPECT_EQ(programs.log(),
              "#1 = create autocad.application\n"
              "#2 = #1.AddRegion({#1}) -> 1\n"
              "#3 = #2.ArrayPolar(7, 6) -> 6\n");
}

TEST(recorder_host, counts_what_is_added_behind_what_a_new_document_holds) {
    recorder_host programs;
    const object_ref part = programs.create(PACKAGE);
    const object_ref planes = object_of(part, "RefPlanes");
    const object_ref models = object_of(part, "Models");
    EXPECT_EQ(as_integer(planes->get("Count")), 3);
    EXPECT_EQ(as_integer(models->get("Count")), 0);
    const object_ref first = object_of(planes, "Item", {std::int32_t{1}});
    const object_ref added = object_of(planes, "AddParallelByDistance", {first, 0.01});
    models->run("Add", {first});
    EXPECT_EQ(as_integer(planes->get("Count")), 4);
    EXPECT_EQ(as_integer(models->get("Count")), 1);
    EXPECT_EQ(object_of(planes, "Item", {std::int32_t{1}}), first);
    EXPECT_EQ(object_of(planes, "Item", {std::int32_t{4}}), added);
}

TEST(recorder_host, answers_what_the_packages_answer_beside_objects) {
    recorder_host programs;
    const object_ref package = programs.create(PACKAGE);
    EXPECT_EQ(as_text(package->get("GetTypeName2")), "RefPlane");
    EXPECT_EQ(as_text(package->get("GetUserPreferenceStringValue", {std::int32_t{8}})),
              "part.prtdot");
    EXPECT_EQ(as_text(package->get("GetTemplateFile", {std::int32_t{12290}})), "standard.ipt");
    EXPECT_EQ(as_integer(package->get("End", {std::int32_t{1}})), 0);
    EXPECT_TRUE(as_bool(package->get("Select2", {false, std::int32_t{0}})));
    EXPECT_EQ(as_integer(package->get("Status")), 1216476310);
}

TEST(recorder_host, copies_a_point_into_what_is_passed_by_reference) {
    recorder_host programs;
    double x = 0.0, y = 0.0;
    programs.create(PACKAGE)->run("Convert3DCoordinate",
                                  {1.5, -2.5, 0.0, by_reference{&x}, by_reference{&y}});
    EXPECT_EQ(x, 1.5);
    EXPECT_EQ(y, -2.5);
    EXPECT_EQ(programs.log(),
              "#1 = create autocad.application\n"
              "#1.Convert3DCoordinate(1.5, -2.5, 0, &, &)\n");
}

TEST(recorder_host, answers_boxes_of_which_those_of_copies_on_a_circle_are_turned) {
    recorder_host programs;
    const object_ref tool = object_of(programs.create(PACKAGE), "AddCylinder");
    const object_ref copy = as_objects(tool->get("ArrayPolar", {std::int32_t{2}})).at(0);
    std::vector<double> lowest, highest;
    tool->run("GetBoundingBox", {by_reference_numbers{&lowest}, by_reference_numbers{&highest}});
    EXPECT_EQ(lowest, (std::vector{0.0, 0.0, 0.0}));
    EXPECT_EQ(highest, (std::vector{2.0, 1.0, 1.0}));
    copy->run("GetBoundingBox", {by_reference_numbers{&lowest}, by_reference_numbers{&highest}});
    EXPECT_EQ(lowest, (std::vector{0.0, 0.0, 0.0}));
    EXPECT_EQ(highest, (std::vector{1.0, 2.0, 1.0}));
}

TEST(recorder_host, answers_one_call_with_an_error) {
    recorder_host programs;
    programs.fail_call(3, 440);
    const object_ref application = connect(programs, PACKAGE);
    try {
        application->put("Visible", true);
        FAIL() << "call 3 fails";
    } catch (const automation_error& error) {
        EXPECT_EQ(error.number(), 440);
    }
    application->put("Visible", true);
    EXPECT_EQ(programs.log(),
              "running autocad.application: none\n"
              "#1 = create autocad.application\n"
              "#1.Visible = true: error 440\n"
              "#1.Visible = true\n");
    EXPECT_EQ(programs.calls().at(2).error, 440);
}

TEST(recorder_host, fails_to_reach_and_to_start_a_program) {
    recorder_host programs;
    programs.fail_call(1, 70);
    programs.fail_call(2, NOT_CREATED);
    EXPECT_THROW(connect(programs, PACKAGE), automation_error);
    EXPECT_EQ(programs.log(),
              "running autocad.application: error 70\n"
              "create autocad.application: error 429\n");
}

TEST(recorder_host, leaves_objects_behind_that_answer_nothing_more) {
    object_ref application;
    {
        recorder_host programs;
        application = programs.create(PACKAGE);
    }
    try {
        application->run("Quit");
        FAIL() << "the program is gone";
    } catch (const automation_error& error) {
        EXPECT_EQ(error.number(), 462);
    }
}

TEST(recorder_host, knows_its_own_objects) {
    recorder_host programs;
    EXPECT_EQ(recorder_host::number_of(nullptr), 0U);
    EXPECT_EQ(recorder_host::number_of(programs.create(PACKAGE)), 1U);
    EXPECT_EQ(recorder_host::number_of(programs.create(PACKAGE)), 2U);
}

}  // namespace
}  // namespace kvt::automation
