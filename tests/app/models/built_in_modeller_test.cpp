// The modeller without a CAD package: loading it, and the entries of the Solid Model menu that
// build in it.
#include "app/models/built_in_modeller.hpp"

#include "app/models/solid_models.hpp"
#include "app/program.hpp"
#include "automation/automation_error.hpp"
#include "automation/recorder_host.hpp"
#include "base/whole_file.hpp"
#include "support/cad/fake_model_store.hpp"
#include "support/cad/model_designs.hpp"
#include "support/scripted_user.hpp"
#include "support/temporary_folder.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

std::int32_t error_of_create(built_in_modeller& modeller) {
    try {
        modeller.create("autocad.application");
    } catch (const automation::automation_error& error) {
        return error.number();
    }
    return 0;
}

/// A design and a modeller whose routines leave these bodies.
struct modelled {
    program kavetta;
    scripted_user person;
    fake_model_store* store = nullptr;

    explicit modelled(program design, std::vector<model_body> bodies) : kavetta(std::move(design)) {
        auto held = std::make_unique<fake_model_store>();
        store = held.get();
        store->to_build = std::move(bodies);
        kavetta.modeller = std::make_shared<built_in_modeller>(std::move(held));
        kavetta.app_state.modelling_package = "SW";
    }
    bool was_shown() const { return std::ranges::count(person.log, "show model_view") == 1; }
};

TEST(built_in_modeller, that_is_missing_drives_nothing) {
    built_in_modeller modeller("no_such_module.so");
    EXPECT_FALSE(modeller.is_there());
    EXPECT_EQ(modeller.running("autocad.application"), nullptr);
    EXPECT_EQ(error_of_create(modeller), automation::NOT_CREATED);
    EXPECT_EQ(modeller.store(), nullptr);
}

TEST(built_in_modeller, that_is_no_module_drives_nothing) {
    const temporary_folder folder;
    write_file(folder / "empty.so", "");
    built_in_modeller modeller(folder / "empty.so");
    EXPECT_TRUE(modeller.is_there());
    EXPECT_EQ(error_of_create(modeller), automation::NOT_CREATED);
    EXPECT_EQ(modeller.loaded_store(), nullptr);
}

TEST(built_in_modeller, is_not_loaded_before_something_is_asked_of_it) {
    built_in_modeller modeller;
    EXPECT_EQ(modeller.loaded_store(), nullptr);
}

TEST(draw_model_here, builds_in_the_unit_of_the_design_and_shows_the_model) {
    modelled mm(double_sided_design(), {box_body({}, {1, 1, 1})});
    draw_model(mm.kavetta, mm.person, model_kind::inner);
    EXPECT_EQ(mm.store->log, (texts{"unit mm", "create sldworks.application"}));
    EXPECT_TRUE(mm.was_shown());
    EXPECT_EQ(mm.person.messages, texts());
    modelled inch(inch_design_with_shadow_ports(), {});
    draw_model(inch.kavetta, inch.person, model_kind::inner);
    EXPECT_EQ(inch.store->log.front(), "unit inch");
}

TEST(draw_model_here, shows_the_model_when_the_hourglass_is_gone) {
    modelled mm(double_sided_design(), {});
    draw_model(mm.kavetta, mm.person, model_kind::inner);
    EXPECT_EQ(mm.person.log.front(), "busy");
    EXPECT_EQ(texts(mm.person.log.end() - 3, mm.person.log.end()),
              (texts{"unload progressfrm", "not busy", "show model_view"}));
}

TEST(draw_model_here, names_what_was_built_and_leaves_older_bodies_alone) {
    modelled made(double_sided_design(),
                  {box_body({-9, -9, 0}, {9, 9, 5}), box_body({-30, -30, 0}, {30, 30, 5})});
    made.store->add_document({box_body({}, {1, 1, 1})});
    draw_model(made.kavetta, made.person, model_kind::assembly);
    const std::vector<model_document> documents = made.store->documents();
    ASSERT_EQ(documents.size(), 2U);
    EXPECT_EQ(documents[0].bodies[0].name, "");
    EXPECT_EQ(documents[1].bodies[0].name, "Inner Rotor");
    EXPECT_EQ(documents[1].bodies[1].name, "Outer Rotor");
}

TEST(draw_model_here, tells_the_message_of_the_package_and_shows_nothing_when_it_fails) {
    modelled made(double_sided_design(), {});
    made.store->programs.fail_call(3, 440);
    draw_model(made.kavetta, made.person, model_kind::inner);
    EXPECT_EQ(made.person.messages,
              texts{"You must have a licensed copy of SolidWorks in order to view the solid "
                    "models."});
    EXPECT_FALSE(made.was_shown());
}

TEST(draw_model_here, gives_way_to_a_package_that_can_be_driven) {
    modelled made(double_sided_design(), {});
    const auto packages = std::make_shared<automation::recorder_host>();
    made.kavetta.packages = packages;
    EXPECT_FALSE(models_are_built_here(made.kavetta));
    draw_model(made.kavetta, made.person, model_kind::inner);
    EXPECT_FALSE(packages->calls().empty());
    EXPECT_EQ(made.store->log, texts());
    EXPECT_FALSE(made.was_shown());
}

TEST(draw_model_here, without_the_module_tells_what_a_system_without_packages_tells) {
    program kavetta = double_sided_design();
    kavetta.app_state.modelling_package = "invent";
    kavetta.modeller = std::make_shared<built_in_modeller>("no_such_module.so");
    EXPECT_FALSE(models_are_built_here(kavetta));
    scripted_user person;
    draw_model(kavetta, person, model_kind::outer);
    EXPECT_EQ(person.messages.at(0).substr(0, 17), "Error number 429 ");
}

}  // namespace
}  // namespace kvt
