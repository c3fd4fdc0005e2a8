// Calculate Performance as a command: the whole road from the file, the validation in both
// languages, what is shown.
#include "app/desk/run_command.hpp"
#include "app/stages/performance_fixture.hpp"
#include "base/number_text.hpp"
#include "base/text_file.hpp"
#include "support/expect_failure.hpp"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace kvt {
namespace {

class whole_road_performance_test : public performance_test,
                                    public testing::WithParamInterface<const char*> {};

nlohmann::json reference(const std::string& name) {
    return nlohmann::json::parse(read_file(std::filesystem::path(KVT_TEST_DATA) / "reference" /
                                           (name + "_performance.json")));
}

TEST_P(whole_road_performance_test, gives_the_reference_values_and_labels) {
    prepare(GetParam());
    ASSERT_TRUE(calculate_performance(kavetta, person));
    EXPECT_TRUE(person.messages.empty());
    const nlohmann::json expected = reference(GetParam());
    expect_performance(kavetta.perf_results, expected);
    for (const label_field& field : label_fields()) {
        if (field.form == "perf_res") {
            EXPECT_EQ(kavetta.labels.*field.member,
                      expected["labels"][std::string(field.name)].get<std::string>());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(samples, whole_road_performance_test,
                         testing::Values("n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                         "n07_inch_hydraulic", "n09_crank_oil"),
                         [](const auto& name) { return std::string(name.param); });

using calculate_performance_test = performance_test;

struct refusal {
    std::string entries::*entry;
    const char* typed;
    const char* english;
    const char* german;
};

const refusal REFUSALS[] = {
    {&entries::fluid_density, "", "Enter a Density for the pumped fluid",
     "Tragen Sie eine Dichtheit für die gepumpte Flüssigkeit"},
    {&entries::kin_visc, "0", "Enter a Viscosity for the pumped fluid, in cSt (centistokes)",
     "Tragen Sie eine Viskosität für die gepumpte Flüssigkeit, ein in cSt (centistokes)"},
    {&entries::vap_press, "x", "Enter a Vapour Pressure for the pumped fluid",
     "Tragen Sie einen Dampfdruck für die gepumpte Flüssigkeit"},
    {&entries::bulk_mod_text, "-1", "Enter a value of Bulk Modulus for the pumped fluid",
     "Tragen Sie einen Wert des Hauptteils Moduls für die gepumpte Flüssigkeit"},
    {&entries::speed_lo, "0", "Enter a speed range for the pump (RPM)",
     "Tragen Sie einen Geschwindigkeitsbereich für die Pumpe (DREHZAHL) ein"},
    {&entries::speed_hi, "0", "Speed must be greater than for low speed setting",
     "Geschwindigkeit muss größer als für niedrige Geschwindigkeitseinstellung sein"},
    {&entries::speed_hi, "0.5", "Speed must be greater than for low speed setting",
     "Geschwindigkeit muss größer als für niedrige Geschwindigkeitseinstellung sein"},
    {&entries::pressure_lo, "0", "Enter a pressure range for the pump",
     "Tragen Sie einen Druckbereich für die Pumpe"},
    {&entries::pressure_hi, "", "Pressure must be greater than for the low pressure setting",
     "Druck muss größer als für die niedrige Druckeinstellung sein"},
    {&entries::pressure_hi, "0.5", "Pressure must be greater than for the low pressure setting",
     "Druck muss größer als für die niedrige Druckeinstellung sein"},
    {&entries::young_inner, "",
     "Enter a value for the Youngs Modulus of the Inner Rotor material (MPa)",
     "Tragen Sie einen Wert für das Jungemodul des Inneren Rotorsmaterials"},
    {&entries::young_outer, "",
     "Enter a value for the Youngs Modulus of the Outer Rotor material (MPa)",
     "Tragen Sie einen Wert für das Jungemodul des Äußeren Rotorsmaterials"},
    {&entries::poissons_inner, "", "Enter a value of Poissons ratio for the Inner Rotor material",
     "Tragen Sie einen Wert des Poissons Verhältnisses für das Innere Rotormaterial ein"},
    {&entries::poissons_outer, "", "Enter a value of Poissons ratio for the Outer Rotor material",
     "Tragen Sie einen Wert des Poissons Verhältnisses für das Äußeren Rotormaterial ein"},
    {&entries::friction, "",
     "Enter a value for the Coefficient of Friction between the rotors\rand housing (assume "
     "lubricated with pumped "
     "fluid)",
     "Geben Sie einen Wert für den Reibungskoeffizienten zwischen den Rotoren\rund dem Gehäuse ein "
     "(mit der gepumpten "
     "Flüssigkeit geschmiert)"},
};

TEST_F(calculate_performance_test,
       tells_each_refusal_in_both_languages_and_empties_that_entry_alone) {
    prepare("n07_engine_oil_groove");
    for (const refusal& row : REFUSALS) {
        for (const std::int16_t language : {ENGLISH, GERMAN}) {
            kavetta.app_state.language = language;
            const entries sound = kavetta.entries;
            kavetta.entries.*row.entry = row.typed;
            person.messages.clear();
            EXPECT_FALSE(calculate_performance(kavetta, person));
            ASSERT_EQ(person.messages.size(), 1U);
            EXPECT_EQ(person.messages[0], language == GERMAN ? row.german : row.english);
            EXPECT_EQ(kavetta.entries.*row.entry, "");
            kavetta.entries.*row.entry = sound.*row.entry;
            EXPECT_EQ(kavetta.entries, sound) << "no other entry changes";
        }
    }
}

TEST_F(calculate_performance_test, closes_the_charts_and_shows_the_results) {
    prepare("n07_engine_oil_groove");
    ASSERT_TRUE(calculate_performance(kavetta, person));
    EXPECT_EQ(person.log,
              (std::vector<std::string>{"unload FLOW_graphview2", "unload LOAD_graphview2",
                                        "unload HERTZ_graphview2", "unload PRESS_RIP_graphview2",
                                        "unload VE_graphview2", "unload EFFIC_graphview2",
                                        "unload OVREFF_graphview2", "show perf_res"}));
}

TEST_F(calculate_performance_test, enables_what_reads_the_results) {
    prepare("n07_engine_oil_groove");
    enabling expected = kavetta.enabling;
    ASSERT_FALSE(expected.create_charts || expected.mnudataperf);
    ASSERT_TRUE(expected.calc_perf);
    ASSERT_TRUE(calculate_performance(kavetta, person));
    expected.create_charts = expected.export_excel = expected.mnudataperf = true;
    expected.GT_Sim_Button = expected.GT_combo = expected.GT_fluid = true;
    EXPECT_EQ(kavetta.enabling, expected);
}

TEST_F(calculate_performance_test, leaves_results_and_forms_alone_when_it_refuses) {
    prepare("n07_engine_oil_groove");
    ASSERT_TRUE(calculate_performance(kavetta, person));
    const labels before = kavetta.labels;
    const perf_grid flow = kavetta.perf_results.flow_m3s;
    kavetta.entries.friction = "0";
    kavetta.entries.kin_visc = "30";
    person.log.clear();
    EXPECT_FALSE(calculate_performance(kavetta, person));
    EXPECT_EQ(kavetta.perf_results.flow_m3s, flow);
    EXPECT_EQ(kavetta.labels.Label1, before.Label1);
    EXPECT_TRUE(kavetta.enabling.create_charts);
    EXPECT_EQ(person.log.size(), 8U)
        << "seven charts closed, one message; perf_res stays, no focus moves";
    EXPECT_TRUE(person.log.back().starts_with("message "));
}

TEST_F(calculate_performance_test, reads_commas_as_points) {
    prepare("n07_engine_oil_groove");
    ASSERT_TRUE(calculate_performance(kavetta, person));
    const perf_grid power = kavetta.perf_results.drive_power;
    kavetta.entries.kin_visc = "12,5";
    kavetta.entries.friction = "0,08";
    const std::string viscosity = "12.5";
    ASSERT_TRUE(calculate_performance(kavetta, person));
    EXPECT_EQ(kavetta.entries.kin_visc, viscosity);
    EXPECT_EQ(kavetta.entries.friction, "0.08");
    EXPECT_EQ(kavetta.perf_results.drive_power, power);
}

TEST_F(calculate_performance_test, reads_the_thickness_again) {
    prepare("n07_engine_oil_groove");
    kavetta.entries.thick = "20";
    ASSERT_TRUE(calculate_performance(kavetta, person));
    EXPECT_EQ(kavetta.design_params.thick, 20.0);
    EXPECT_EQ(kavetta.perf_results.od_band, 20.0);
}

TEST_F(calculate_performance_test, reads_no_calculation_from_the_tensile_strength) {
    prepare("n07_engine_oil_groove");
    ASSERT_TRUE(calculate_performance(kavetta, person));
    const double stress = kavetta.perf_results.hertz_max;
    kavetta.entries.UTS_value = "1";
    ASSERT_TRUE(calculate_performance(kavetta, person));
    EXPECT_EQ(kavetta.perf_results.hertz_max, stress);
}

/// The vapour pressure of 761 mmHg is above the atmosphere's: the root of a negative number has no
/// handler.
TEST_F(calculate_performance_test,
       is_fatal_above_the_pressure_of_the_atmosphere_and_saves_the_entries) {
    prepare("n07_engine_oil_groove");
    kavetta.entries.vap_press = "761";
    EXPECT_FAILURE(calculate_performance(kavetta, person), failure::invalid_procedure_call);
    EXPECT_EQ(std::ranges::count(person.log, "show perf_res"), 0) << "the speed limits come first";
    const entries typed = kavetta.entries;
    EXPECT_TRUE(run_command(kavetta, person, [this] {
        calculate_performance(kavetta, person);
        return false;
    })) << "the program ends";
    ASSERT_EQ(person.messages.size(), 1U);
    EXPECT_TRUE(person.messages[0].starts_with("Run-time error 5"));
    program recovered;
    recovered.folder = kavetta.folder;
    scripted_user other;
    load_project(recovered, other, folder.file("recovery.KVT"));
    EXPECT_EQ(recovered.entries.vap_press, "761");
    EXPECT_EQ(recovered.entries.friction, typed.friction);
}

/// An oil so thick that the chamber never fills.
TEST_F(calculate_performance_test,
       is_fatal_when_the_march_never_ends_with_the_results_up_to_there) {
    prepare("n04_fuel");
    kavetta.entries.kin_visc = "1E12";
    EXPECT_FAILURE(calculate_performance(kavetta, person), failure::subscript_out_of_range);
    EXPECT_EQ(person.log.back(), "show perf_res") << "shown before the routines";
    EXPECT_FALSE(kavetta.enabling.create_charts);
    EXPECT_GT(kavetta.perf_results.power_max, 0.0);
    EXPECT_FALSE(kavetta.labels.max_shaft_side_load.empty());
    EXPECT_TRUE(kavetta.labels.Label1.empty());
}

/// Both ports from the entries 180 and 180: the end angles in memory are 0, so the outlet has no
/// arc.
TEST_F(calculate_performance_test, gives_no_flow_for_ports_that_end_at_180) {
    prepare("n09_crank_oil");
    for (const auto entry : {&entries::inlet_end_inner, &entries::inlet_end_outer,
                             &entries::outlet_end_inner, &entries::outlet_end_outer}) {
        kavetta.entries.*entry = "180";
    }
    const ports_designed done = design_ports(kavetta, person);
    ASSERT_TRUE(done.outlet);
    ASSERT_EQ(kavetta.port_params.outlet.corners[END_OUTER].angle_deg, 0.0);
    ASSERT_TRUE(calculate_performance(kavetta, person));
    EXPECT_EQ(kavetta.perf_results.flow_max, 0.0);
    EXPECT_GT(kavetta.perf_results.port_area, 0.0) << "the inlet's 0 counts as 180";
}

TEST_F(calculate_performance_test, is_the_same_pump_in_inches) {
    prepare("n07_inch_hydraulic");
    ASSERT_EQ(kavetta.app_state.drawing_units, INCHES);
    ASSERT_TRUE(calculate_performance(kavetta, person));
    EXPECT_TRUE(kavetta.labels.max_shaft_side_load.ends_with(" lbsf"));
    EXPECT_TRUE(kavetta.labels.max_cutter_inner.ends_with(" inches"));
    EXPECT_NEAR(kavetta.perf_results.press_pa[0],
                val(kavetta.entries.pressure_lo) * 101300.0 / 14.5, 1e-6);
}

}  // namespace
}  // namespace kvt
