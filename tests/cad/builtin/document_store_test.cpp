#include "cad/builtin/document_store.hpp"

#include "base/whole_file.hpp"
#include "support/cad/mesh_checks.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"
#include "support/unprivileged.hpp"

#include <gtest/gtest.h>
#include <numbers>
#include <stdexcept>

namespace kvt::builtin {
namespace {

body pin(double radius) {
    return cylinder({0.0, 0.0, 1.0}, radius, 2.0);
}

/// A document with a pin of radius 1, one of radius 2, and a circle.
struct three_bodies {
    document_store store;
    document_number document = store.add_document("Part1");
    body_number small = store.add(document, pin(1.0), "Pad1");
    body_number large = store.add(document, pin(2.0), "Pad2");
    body_number circle = store.add(document, circle_wire({1.0, 0.0}, 3.0), "Sketch1");

    std::vector<model_body> bodies() const { return store.documents().at(0).bodies; }
};

TEST(document_store, tells_documents_and_bodies_in_order_of_birth) {
    three_bodies three;
    const document_number second = three.store.add_document("Part2");
    const std::vector<model_document> documents = three.store.documents();
    ASSERT_EQ(documents.size(), 2u);
    EXPECT_EQ(documents[0].name, "Part1");
    EXPECT_EQ(documents[1].number, second);
    EXPECT_TRUE(documents[1].bodies.empty());
    ASSERT_EQ(documents[0].bodies.size(), 3u);
    EXPECT_EQ(documents[0].bodies[0].name, "Pad1");
    EXPECT_EQ(documents[0].bodies[0].role, body_role::other);
    EXPECT_NEAR(documents[0].bodies[1].volume(), 8.0 * std::numbers::pi, 1e-12);
    EXPECT_EQ(documents[0].bodies[1].box.highest.z, 2.0);
}

TEST(document_store, tells_a_curve_without_volume) {
    const three_bodies three;
    const model_body circle = three.bodies()[2];
    EXPECT_TRUE(circle.is_curve);
    EXPECT_EQ(circle.volume(), 0.0);
    EXPECT_NEAR(circle.box.lowest.x, -2.0, 1e-12);
    EXPECT_NEAR(circle.box.highest.x, 4.0, 1e-12);
    EXPECT_NEAR(circle.box.lowest.y, -3.0, 1e-12);
    EXPECT_NEAR(circle.box.highest.y, 3.0, 1e-12);
}

TEST(document_store, keeps_labels_and_forgets_those_of_bodies_that_are_gone) {
    three_bodies three;
    three.store.label(three.large, "Outer rotor", body_role::outer_rotor);
    three.store.label(99, "nobody", body_role::inlet);
    EXPECT_EQ(three.bodies()[1].name, "Outer rotor");
    EXPECT_EQ(three.bodies()[1].role, body_role::outer_rotor);
    three.store.replace(three.large, pin(5.0));
    EXPECT_EQ(three.bodies()[1].name, "Outer rotor") << "a Boolean leaves its first solid";
    EXPECT_NEAR(three.bodies()[1].contour_area, 25.0 * std::numbers::pi, 1e-12);
}

TEST(document_store, never_uses_a_number_again) {
    three_bodies three;
    three.store.remove(three.circle);
    EXPECT_FALSE(three.store.has(three.circle));
    EXPECT_GT(three.store.add(three.document, pin(1.0), "Pad3"), three.circle);
    three.store.close_document(three.document);
    EXPECT_GT(three.store.add_document("Part1"), three.document);
    EXPECT_FALSE(three.store.has(three.small)) << "its bodies go with a document";
    EXPECT_THROW(three.store.add(three.document, pin(1.0), "late"), std::out_of_range);
    EXPECT_THROW(three.store.replace(three.small, pin(1.0)), std::out_of_range);
    EXPECT_THROW(three.store.at(three.small), std::out_of_range);
    three.store.close_document(three.document);  // once more: without effect
}

TEST(document_store, closes_one_document_and_keeps_the_others) {
    three_bodies three;
    const document_number second = three.store.add_document("Part2");
    const body_number kept = three.store.add(second, pin(1.0), "Pad1");
    three.store.close_document(three.document);
    EXPECT_TRUE(three.store.has(kept));
    EXPECT_FALSE(three.store.has_document(three.document));
}

TEST(document_store, makes_a_mesh_once_and_anew_for_another_shape) {
    three_bodies three;
    const body_mesh& first = three.store.mesh_of(three.small);
    EXPECT_TRUE(is_watertight(first));
    EXPECT_EQ(&three.store.mesh_of(three.small), &first);
    const double before = mesh_volume(first);
    three.store.replace(three.small, pin(2.0));
    EXPECT_NEAR(mesh_volume(three.store.mesh_of(three.small)) / before, 4.0, 1e-9);
    EXPECT_TRUE(three.store.mesh_of(three.circle).triangles.empty());
    EXPECT_EQ(three.store.mesh_of(three.circle).edges.size(), 1u);
    EXPECT_TRUE(three.store.mesh_of(99).points.empty());
}

class saved_format : public testing::TestWithParam<solid_format> {};

TEST_P(saved_format, replaces_a_file_as_a_whole) {
    three_bodies three;
    const temporary_folder folder;
    write_file(folder / "model", "older");
    three.store.save(folder / "model", GetParam(), {three.small, three.large}, {});
    EXPECT_GT(read_file(folder / "model").size(), 1000u);
    std::size_t files = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.path())) {
        ++files;
    }
    EXPECT_EQ(files, 1u) << "the temporary name is gone";
}

TEST_P(saved_format, fails_with_the_reason_of_the_system) {
    three_bodies three;
    const temporary_folder folder;
    EXPECT_FAILURE(three.store.save(folder / "none" / "model", GetParam(), {three.small}, {}),
                   failure::path_not_found);
    write_file(folder / "model", "older");
    std::filesystem::permissions(
        folder.path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    {
        const unprivileged person;
        try {
            three.store.save(folder / "model", GetParam(), {three.small}, {});
            ADD_FAILURE() << "saved into a folder that takes no file";
        } catch (const run_time_error& error) {
            EXPECT_EQ(error.kind(), failure::path_file_access);
            EXPECT_EQ(error.fault().why, file_fault::reason::system);
        }
    }
    std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
    EXPECT_EQ(read_file(folder / "model"), "older");
}
INSTANTIATE_TEST_SUITE_P(of, saved_format,
                         testing::Values(solid_format::step, solid_format::stl,
                                         solid_format::three_mf, solid_format::brep));

TEST(document_store, saves_what_is_still_there) {
    three_bodies three;
    const temporary_folder folder;
    three.store.remove(three.large);
    three.store.save(folder / "some.stp", solid_format::step,
                     {three.small, three.large, three.circle}, {});
    const std::string step = read_file(folder / "some.stp");
    EXPECT_NE(step.find("PRODUCT('Pad1'"), std::string::npos);
    EXPECT_NE(step.find("PRODUCT('Sketch1'"), std::string::npos);
    EXPECT_EQ(step.find("PRODUCT('Pad2'"), std::string::npos);
    EXPECT_EQ(step.find("Housing"), std::string::npos);
}

TEST(document_store, adds_a_housing_to_what_is_saved) {
    three_bodies three;
    const temporary_folder folder;
    housing_plan plan;
    plan.outer_radius = 10.0;
    plan.bore_radius = 5.0;
    plan.bottom = -4.0;
    plan.top = 2.0;
    three.store.save(folder / "all.stp", solid_format::step, {three.small}, plan);
    EXPECT_NE(read_file(folder / "all.stp").find("PRODUCT('Housing'"), std::string::npos);
    EXPECT_EQ(three.bodies().size(), 3u) << "it is saved and not kept";
}

}  // namespace
}  // namespace kvt::builtin
