// Tests of saving models: formats, refusals, what is told.
#include "app/models/save_model.hpp"

#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "base/number_text.hpp"
#include "base/text_file.hpp"
#include "support/cad/sample_model_store.hpp"
#include "support/open_design.hpp"
#include "support/scripted_user.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

class save_model_test : public testing::Test {
  protected:
    save_model_test() { kavetta.modeller = sample_modeller(store); }

    void calculate() {
        kavetta = opened_design("n07_engine_oil_groove");
        kavetta.modeller = sample_modeller(store);
        scripted_user nobody;
        calculate_profiles(kavetta, nobody);
        design_ports(kavetta, nobody);
    }
    std::vector<model_body> bodies() const { return store->documents()[0].bodies; }
    std::vector<model_body> curve() const { return {bodies()[2]}; }
    void save_as(const std::string& path, const model_choice& choice) {
        person.files.emplace_back(path);
        save_model(kavetta, person, choice);
    }
    void refuse_housing(const housing_texts& housing, const std::string& message) {
        person.messages.clear();
        save_model(kavetta, person, {{}, housing});
        EXPECT_EQ(person.messages, texts{message});
        EXPECT_TRUE(person.dialogs.empty());
    }

    program kavetta;
    sample_model_store* store = nullptr;
    scripted_user person;
};

}  // namespace

TEST_F(save_model_test, saves_the_ticked_bodies_behind_the_hourglass) {
    kavetta.app_state.project_name = "pump";
    save_as("out/pump.stp", {{bodies()[0], bodies()[2]}, {}});
    ASSERT_EQ(store->saved.size(), 1U);
    EXPECT_EQ(store->saved[0].file, "out/pump.stp");
    EXPECT_EQ(store->saved[0].format, solid_format::step);
    EXPECT_EQ(store->saved[0].bodies,
              (std::vector{sample_model_store::BOX, sample_model_store::CURVE}));
    EXPECT_FALSE(store->saved[0].housing);
    EXPECT_EQ(person.log, (texts{"dialog Kavetta V2021 - Save Model", "busy", "not busy",
                                 "status Written: out/pump.stp"}));
    EXPECT_EQ(person.dialogs[0].filter,
              "STEP|*.stp;*.step|STL|*.stl|3MF|*.3mf|BREP|*.brep|All files|*.*");
    EXPECT_EQ(person.dialogs[0].filter_index, 1);
    EXPECT_EQ(person.dialogs[0].default_extension, "stp");
    EXPECT_EQ(person.dialogs[0].file_name, "pump");
    EXPECT_EQ(person.dialogs[0].flags, OVERWRITE_PROMPT);
}

TEST_F(save_model_test, has_a_german_title) {
    kavetta.app_state.language = GERMAN;
    person.files.emplace_back(std::nullopt);
    save_model(kavetta, person, {bodies(), {}});
    EXPECT_EQ(person.dialogs[0].title, "Kavetta V2021 - Sparen Sie Modell");
    EXPECT_TRUE(store->saved.empty());
}

TEST_F(save_model_test, takes_the_format_from_the_ending) {
    EXPECT_EQ(solid_format_of("a.stp"), solid_format::step);
    EXPECT_EQ(solid_format_of("a.STEP"), solid_format::step);
    EXPECT_EQ(solid_format_of("a.stl"), solid_format::stl);
    EXPECT_EQ(solid_format_of("a.b.STL"), solid_format::stl);
    EXPECT_EQ(solid_format_of("a.3MF"), solid_format::three_mf);
    EXPECT_EQ(solid_format_of("a.Brep"), solid_format::brep);
    EXPECT_EQ(solid_format_of("a.txt"), solid_format::step);
    EXPECT_EQ(solid_format_of("a"), solid_format::step);
}

TEST_F(save_model_test, refuses_to_save_nothing) {
    save_model(kavetta, person, {});
    EXPECT_EQ(person.log, texts{"message Tick a body that is to be saved."});
}

TEST_F(save_model_test, saves_curves_where_the_format_has_them) {
    save_as("curve.stl", {curve(), {}});
    save_as("curve.3mf", {curve(), {}});
    EXPECT_EQ(person.messages, texts(2, "A curve can be saved as STEP or BREP only."));
    EXPECT_TRUE(store->saved.empty());
    save_as("curve.brep", {curve(), {}});
    save_as("all.stl", {bodies(), {}});
    EXPECT_EQ(store->saved.size(), 2U);
}

TEST_F(save_model_test, tells_the_reason_when_the_file_cannot_be_written) {
    store->save_failure =
        run_time_error(failure::path_file_access, "", {file_fault::reason::system, ENOSPC});
    save_as("full/pump.stl", {bodies(), {}});
    EXPECT_EQ(person.log.back(),
              "message The file could not be saved: full/pump.stl: Path/File access error "
              "(No space left on device)");
    EXPECT_EQ(person.log[person.log.size() - 2], "not busy");
}

TEST_F(save_model_test, proposes_a_housing_for_the_design) {
    EXPECT_EQ(usual_housing_texts(kavetta), housing_texts());
    calculate();
    // maxdiameter 52 and 0.15 mm of air and 5 mm of wall on each side
    const double diameter = kavetta.design_params.maxdiameter + 10.3;
    EXPECT_EQ(usual_housing_texts(kavetta).outer_diameter, number_text(diameter));
    EXPECT_EQ(usual_housing_texts(kavetta).wall, "5");
    EXPECT_EQ(usual_housing_texts(kavetta).floor, "5");
    kavetta.app_state.drawing_units = INCHES;
    EXPECT_EQ(usual_housing_texts(kavetta).wall, "0.196");
}

TEST_F(save_model_test, saves_a_housing_of_the_typed_sizes) {
    calculate();
    save_as("housing.stl", {{}, usual_housing_texts(kavetta)});
    ASSERT_EQ(store->saved.size(), 1U);
    ASSERT_TRUE(store->saved[0].housing);
    const housing_plan& plan = *store->saved[0].housing;
    EXPECT_NEAR(plan.outer_radius, kavetta.design_params.maxdiameter / 2.0 + 5.15, 1e-9);
    EXPECT_NEAR(plan.bore_radius, kavetta.design_params.maxdiameter / 2.0 + 0.15, 1e-9);
    EXPECT_EQ(plan.pockets.size(), 3U);  // inlet, outlet, groove
}

TEST_F(save_model_test, has_no_pockets_of_ports_that_were_not_designed_for_the_project) {
    calculate();
    kavetta.stage_entries.inlet.reset();
    kavetta.stage_entries.outlet.reset();
    save_as("housing.stl", {{}, usual_housing_texts(kavetta)});
    ASSERT_EQ(store->saved.size(), 1U);
    EXPECT_TRUE(store->saved[0].housing->pockets.empty());
}

TEST_F(save_model_test, refuses_a_housing_that_cannot_be) {
    calculate();
    housing_texts housing = usual_housing_texts(kavetta);
    refuse_housing({housing.outer_diameter, "5.2", housing.floor},
                   "The outer rotor does not fit into the housing: the bore, outer diameter less "
                   "twice the wall, must be wider than " +
                       number_text(kavetta.design_params.maxdiameter) + " mm.");
    for (const char* wall : {"0", "-1", "", "x", "1e999"}) {
        refuse_housing({housing.outer_diameter, wall, housing.floor},
                       "The wall of the housing must be greater than 0.");
    }
    refuse_housing({housing.outer_diameter, housing.wall, "0"},
                   "The floor of the housing must be greater than 0.");
    kavetta.port_params.inlet.x[0] = 1000.0;
    refuse_housing(housing,
                   "A port breaks through the outside of the housing. Increase its outer "
                   "diameter.");
}

TEST_F(save_model_test, needs_profiles_for_a_housing) {
    refuse_housing({"60", "5", "5"},
                   "Calculate Profiles first: there are no profiles of this project yet.");
}

TEST_F(save_model_test, writes_a_picture) {
    kavetta.app_state.project_name = "pump";
    const temporary_folder folder;
    const std::string file = folder.file("pump.png");
    person.files = {file, std::nullopt, folder.file("no/pump.png")};
    const auto picture = [] { return std::string("PNG"); };
    save_model_picture(kavetta, person, picture);
    EXPECT_EQ(read_file(file), "PNG");
    EXPECT_EQ(person.statuses, texts{"Written: " + file});
    EXPECT_EQ(person.dialogs[0].title, "Kavetta V2021 - Export Picture");
    save_model_picture(kavetta, person, picture);
    EXPECT_EQ(person.statuses.size(), 1U);
    save_model_picture(kavetta, person, picture);
    ASSERT_EQ(person.messages.size(), 1U);
    EXPECT_TRUE(person.messages[0].starts_with("The file could not be saved: "));
}

}  // namespace kvt
