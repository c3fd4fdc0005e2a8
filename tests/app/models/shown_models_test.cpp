// Tests of what the Model View shows: the scene, its turns, the lines that tell sizes.
#include "app/models/shown_models.hpp"

#include "app/program.hpp"
#include "support/cad/sample_model_store.hpp"
#include "views/model/model_palette.hpp"

#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

struct shown_program {
    program kavetta;
    sample_model_store* store = nullptr;

    shown_program() { kavetta.modeller = sample_modeller(store); }
    std::vector<model_body> drawing() const { return store->documents()[0].bodies; }
};

}  // namespace

TEST(built_documents, are_none_without_a_modeller) {
    EXPECT_TRUE(built_documents(program()).empty());
    program kavetta;
    kavetta.modeller = std::make_shared<built_in_modeller>("no/module");
    EXPECT_TRUE(built_documents(kavetta).empty());
}

TEST(built_documents, are_those_of_the_store) {
    const shown_program shown;
    ASSERT_EQ(built_documents(shown.kavetta).size(), 2U);
    close_model_document(shown.kavetta, sample_model_store::ROTORS);
    ASSERT_EQ(built_documents(shown.kavetta).size(), 1U);
    EXPECT_EQ(built_documents(shown.kavetta)[0].name, "Part2");
}

TEST(scene_of_bodies, gives_each_role_its_colour) {
    const shown_program shown;
    for (const bool dark : {false, true}) {
        const model_scene scene =
            scene_of_bodies(shown.kavetta, shown.drawing(), {.on_dark_ground = dark});
        const model_palette& palette = model_palette_on(dark);
        ASSERT_EQ(scene.parts.size(), 3U);
        EXPECT_EQ(scene.background, palette.background);
        EXPECT_EQ(scene.parts[0].colour, palette.inner_rotor);
        EXPECT_EQ(scene.parts[1].colour, palette.outer_rotor);
        EXPECT_EQ(scene.parts[2].colour, palette.curve);
        EXPECT_EQ(scene.parts[0].mesh, &shown.store->mesh_of(sample_model_store::BOX));
    }
}

TEST(scene_of_bodies, turns_the_rotors_on_demand_as_the_design_view_does) {
    shown_program shown;
    shown.kavetta.view_state.rotation_angle = 70.0;
    shown.kavetta.view_state.outer_rotation_angle = 60.0;
    shown.kavetta.design_params.ecc = 2.85;
    const model_scene still = scene_of_bodies(shown.kavetta, shown.drawing(), {});
    EXPECT_EQ(still.parts[0].turn.angle, 0.0);
    EXPECT_EQ(still.parts[1].turn.angle, 0.0);
    const model_scene turned =
        scene_of_bodies(shown.kavetta, shown.drawing(), {.turns_with_design_view = true});
    EXPECT_DOUBLE_EQ(turned.parts[0].turn.angle, -70.0 * std::numbers::pi / 180.0);
    EXPECT_EQ(turned.parts[0].turn.axis, (point2{0.0, 0.0}));
    EXPECT_DOUBLE_EQ(turned.parts[1].turn.angle, -60.0 * std::numbers::pi / 180.0);
    EXPECT_EQ(turned.parts[1].turn.axis, (point2{-2.85, 0.0}));
    EXPECT_EQ(turned.parts[2].turn.angle, 0.0);
}

TEST(bodies_line, tells_volume_and_box_in_the_unit_of_the_project) {
    shown_program shown;
    const std::vector<model_body> bodies = shown.drawing();
    EXPECT_EQ(bodies_line(shown.kavetta, {}), "");
    // 200 mm2 times 8 mm
    EXPECT_EQ(bodies_line(shown.kavetta, {bodies[0]}),
              "Inner Rotor: volume 1.600 cm\u00b3, box 20.000 x 10.000 x 8.000 mm");
    EXPECT_EQ(bodies_line(shown.kavetta, {bodies[2]}), "Trochoid: box 24.000 x 12.000 x 0.000 mm");
    // pi (400 - 196) 8 = 5127 mm3 more
    EXPECT_EQ(bodies_line(shown.kavetta, bodies),
              "3 bodies: volume 6.727 cm\u00b3, box 40.000 x 40.000 x 8.000 mm");
    shown.kavetta.app_state.drawing_units = INCHES;
    shown.kavetta.app_state.language = GERMAN;
    EXPECT_EQ(bodies_line(shown.kavetta, {bodies[0], bodies[2]}),
              "2 Körper: Volumen 1.600 cm\u00b3, Maße 0.94488 x 0.66929 x 0.31496 in");
}

TEST(distance_line, tells_the_distance_and_its_parts) {
    shown_program shown;
    EXPECT_EQ(distance_line(shown.kavetta, {1.0, 1.0, 1.0}, {4.0, -3.0, 1.0}),
              "Distance 5.000 mm: x 3.000, y -4.000, z 0.000");
    shown.kavetta.app_state.drawing_units = INCHES;
    EXPECT_EQ(distance_line(shown.kavetta, {}, {0.0, 0.0, 25.4}),
              "Distance 1.00000 in: x 0.00000, y 0.00000, z 1.00000");
}

}  // namespace kvt
