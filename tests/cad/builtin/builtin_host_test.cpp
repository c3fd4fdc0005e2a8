#include "cad/builtin/builtin_host.hpp"

#include "support/cad/test_modeller.hpp"
#include "support/expect_failure.hpp"

#include <array>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using automation::object_of;
using automation::object_ref;

constexpr std::array CLASSES = {"AutoCAD.Application", "SldWorks.Application",
                                "Inventor.Application", "SolidEdge.Application",
                                "CATIA.Application"};

}  // namespace

TEST(builtin_host, runs_a_package_from_its_first_create_on) {
    test_modeller made;
    for (const char* name : CLASSES) {
        EXPECT_EQ(made.host.running(name), nullptr) << name;
        const object_ref application = made.host.create(name);
        EXPECT_NO_THROW(application->put("Visible", true)) << name;
        EXPECT_EQ(made.host.running(name), application) << name;
        EXPECT_EQ(made.host.create(name), application) << name;
    }
    EXPECT_TRUE(made.host.documents().empty());
}

TEST(builtin_host, takes_a_class_name_in_either_case) {
    test_modeller made;
    EXPECT_EQ(made.host.create("CATIA.APPLICATION"), made.host.create("catia.application"));
    EXPECT_NE(made.host.running("Catia.Application"), nullptr);
}

TEST(builtin_host, has_no_other_programs) {
    test_modeller made;
    EXPECT_EQ(made.host.running("excel.application"), nullptr);
    EXPECT_FAILURE(made.host.create("excel.application"), 429);
    EXPECT_FAILURE(made.host.create("autocad.application.24"), 429);
}

TEST(builtin_host, numbers_the_parts_of_all_packages_one_after_the_other) {
    test_modeller made;
    const object_ref edge = made.host.create("solidedge.application");
    const object_ref documents = object_of(edge, "Documents");
    documents->get("Add", {std::string("SolidEdge.PartDocument")});
    object_of(made.host.create("catia.application"), "Documents")
        ->get("Add", {std::string("Part")});
    documents->get("Add", {std::string("SolidEdge.PartDocument")});
    std::vector<std::string> names;
    for (const model_document& document : made.host.documents()) {
        names.push_back(document.name);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Part1", "Part2", "Part3"}));
}

TEST(builtin_host, is_outlived_by_an_application_that_is_held) {
    object_ref application;
    {
        test_modeller made;
        application = made.host.create("solidedge.application");
    }
    const object_ref part = object_of(object_of(application, "Documents"), "Add",
                                      {std::string("SolidEdge.PartDocument")});
    EXPECT_NO_THROW(object_of(part, "ProfileSets")->get("Add"));
}

TEST(builtin_host, hands_labels_meshes_and_closing_on_to_its_documents) {
    test_modeller made;
    const object_ref space = object_of(
        object_of(made.host.create("autocad.application"), "ActiveDocument"), "ModelSpace");
    space->get("AddCylinder", {automation::number_array{{0.0, 0.0, 0.0}}, 1.0, 2.0});
    const model_body body = made.bodies().at(0);
    made.host.label(body.number, "pin", body_role::inner_rotor);
    EXPECT_EQ(made.bodies().at(0).name, "pin");
    EXPECT_EQ(made.bodies().at(0).role, body_role::inner_rotor);
    EXPECT_FALSE(made.host.mesh_of(body.number).triangles.empty());
    made.host.close_document(made.host.documents().at(0).number);
    EXPECT_TRUE(made.host.documents().empty());
    EXPECT_TRUE(made.host.mesh_of(body.number).triangles.empty());
}

}  // namespace kvt
