// What is known before Calculate Performance is pressed: every failure and every empty result of
// random designs has its hint, and a hint is right.
#include "app/stages/performance_hint.hpp"

#include "app/desk/command_hints.hpp"
#include "app/desk/run_command.hpp"
#include "app/stages/performance_fixture.hpp"
#include "base/number_text.hpp"
#include "support/random_design.hpp"

#include <gtest/gtest.h>
#include <optional>

namespace kvt {
namespace {

constexpr int DESIGNS = 120;

void type_wide_ports(random_values& random, entries& boxes) {
    type_random_ports(random, boxes);
    for (const char* port : {"inlet", "outlet"}) {
        const auto box = [&](const char* place) -> std::string& {
            return boxes.*find_entry(std::string(port) + place)->member;
        };
        switch (random.whole(0, 9)) {
            case 0:
                box("_end_inner") = box("_end_outer") = "180";
                break;
            case 1:  // the inner arc may be the longer one
                box("_start_outer") = typed_number(random.real(5.0, 120.0));
                box("_end_outer") = typed_number(random.real(100.0, 175.0));
                break;
            case 2:
                box("_start_inner") = typed_number(random.real(0.0, 120.0));
                box("_end_inner") = typed_number(random.real(60.0, 179.0));
                break;
            default:
                break;
        }
    }
    const double root = val(boxes.radinnroot);
    if (random.whole(0, 3) == 0) {
        boxes.Outlet_inner_radius = typed_number(root * random.real(0.4, 1.4));
        boxes.Outlet_outer_radius = typed_number(root * random.real(1.2, 2.0));
    }
    if (random.whole(0, 3) == 0) {
        boxes.inlet_inner_radius = typed_number(root * random.real(0.8, 1.4));
        boxes.inlet_outer_radius = typed_number(root * random.real(1.2, 2.0));
    }
    boxes.groove_depth = typed_number(val(boxes.ecc) * random.real(0.01, 2.0));
}

void type_inputs(random_values& random, entries& boxes) {
    boxes.fluid_density = typed_number(random.real(700.0, 1000.0));
    boxes.kin_visc = typed_number(std::pow(10.0, random.real(0.5, 3.5)));
    boxes.vap_press = typed_number(random.real(0.1, random.whole(0, 19) == 0 ? 2000.0 : 50.0));
    boxes.bulk_mod_text = typed_number(random.real(0.8, 2.0));
    const double speed = std::pow(10.0, random.real(2.0, 3.7));
    boxes.speed_lo = typed_number(speed);
    boxes.speed_hi = typed_number(speed + random.real(1.0, 5000.0));
    const double pressure = random.real(0.5, 20.0);
    boxes.pressure_lo = typed_number(pressure);
    boxes.pressure_hi = typed_number(pressure + random.real(1.0, 100.0));
    boxes.young_inner = boxes.young_outer = typed_number(random.real(100.0, 220.0));
    boxes.poissons_inner = boxes.poissons_outer =
        typed_number(random.whole(0, 19) == 0 ? random.real(0.9, 3.0) : random.real(0.2, 0.35));
    boxes.friction = typed_number(random.real(0.02, random.whole(0, 9) == 0 ? 30.0 : 0.2));
}

/// A design whose profiles are accepted, with every entry of the performance. Its ports or its
/// groove may be refused: Calculate Performance can be pressed all the same, and reads what was set
/// before.
std::optional<program> next_design(random_values& random) {
    program kavetta;
    scripted_user person;
    type_random_rotors(random, kavetta.entries, 1.0);
    type_wide_ports(random, kavetta.entries);
    type_inputs(random, kavetta.entries);
    kavetta.design_params.ecc = val(kavetta.entries.ecc);
    kavetta.design_params.radinnroot = val(kavetta.entries.radinnroot);
    try {
        if (calculate_profiles(kavetta, person) != run_end::ok) {
            return std::nullopt;
        }
        design_ports(kavetta, person);
    } catch (const run_time_error&) {
        return std::nullopt;
    }
    return kavetta;
}

/// The failure of Calculate Performance, "no flow", or nothing.
std::string end_of_run(program& kavetta) {
    scripted_user person;
    try {
        if (!calculate_performance(kavetta, person)) {
            ADD_FAILURE() << "an entry was refused: " << person.messages[0];
        }
        return kavetta.perf_results.flow_max == 0.0 ? "no flow" : "";
    } catch (const run_time_error& error) {
        return error.what();
    }
}

/// The rule: a hint means that the run fails or that the flow is 0 at every point. Only an outlet
/// within the shaft, or beside the chambers, may have a flow, which means nothing.
bool may_deliver_all_the_same(message hint) {
    return hint == message::no_ports_yet || hint == message::hint_outlet_within_shaft ||
           hint == message::hint_outlet_misses_chambers;
}

TEST(performance_hint, stands_before_every_failure_and_every_empty_result_of_random_designs) {
    random_values random;
    const int wanted = property_count(DESIGNS);
    int hinted = 0;
    for (int sound = 0, tried = 0; sound < wanted; ++tried) {
        ASSERT_LT(tried, 50 * wanted + 500) << "too few of the random designs are accepted";
        std::optional<program> kavetta = next_design(random);
        if (!kavetta) {
            continue;
        }
        ++sound;
        kavetta->hints.clear();  // those of profiles and ports
        const auto hint = performance_hint(*kavetta);
        const std::string end = end_of_run(*kavetta);
        EXPECT_TRUE(hint || end.empty()) << "design " << tried << " ends with " << end;
        EXPECT_TRUE(!hint || !end.empty() || may_deliver_all_the_same(*hint))
            << "design " << tried << ": a false alarm, " << message_text(*hint, ENGLISH);
        EXPECT_EQ(kavetta->hints.size(), hint ? 1U : 0U);
        hinted += hint ? 1 : 0;
    }
    EXPECT_GT(hinted, 0);
    EXPECT_LT(hinted, wanted);
}

class performance_hint_test : public performance_test {
  protected:
    void prepare_again(const std::string& sample) {
        std::filesystem::remove(folder.file("projects/" + sample + ".KVT"));
        const std::filesystem::path home = kavetta.folder;
        kavetta = {};
        kavetta.folder = home;
        person.messages.clear();
        prepare(sample);
    }
    std::vector<hint> hints_now() {
        performance_hint_memory none;
        return hints_on_display(kavetta, none);
    }
    void end_outlet_at_180() {
        kavetta.entries.outlet_end_inner = kavetta.entries.outlet_end_outer = "180";
        ASSERT_TRUE(design_ports(kavetta, person).outlet);
    }
};

TEST_F(performance_hint_test, names_each_entry_in_the_way) {
    struct row {
        const char* sample;
        std::string entries::*box;
        const char* typed;
        message hint;
    };
    const row rows[] = {
        {"n09_crank_oil", &entries::Outlet_inner_radius, "20.9", message::hint_outlet_within_shaft},
        {"n09_crank_oil", &entries::inlet_start_outer, "90", message::hint_inlet_without_area},
        {"n04_fuel", &entries::vap_press, "760", message::hint_vapour_pressure},
        {"n04_fuel", &entries::poissons_inner, "1.4", message::hint_poissons_ratio},
        {"n04_fuel", &entries::OD_area_value, "-1E6", message::hint_no_drive_power},
        {"n04_fuel", &entries::kin_visc, "1E-4", message::hint_leaks_take_the_flow},
        {"n04_fuel", &entries::kin_visc, "1E12", message::hint_chamber_never_fills},
        {"n07_engine_oil_groove", &entries::groove_depth, "1E-7", message::hint_groove_never_fills},
        {"n04_fuel", &entries::speed_hi, "1E999", message::hint_performance_out_of_range},
        {"n04_fuel", &entries::pressure_hi, "1E308", message::hint_performance_out_of_range},
    };
    for (const row& here : rows) {
        prepare_again(here.sample);
        EXPECT_EQ(performance_hint(kavetta), std::nullopt) << here.sample;
        kavetta.entries.port_radii = "0";
        kavetta.entries.*here.box = here.typed;
        design_ports(kavetta, person);
        EXPECT_EQ(performance_hint(kavetta), here.hint) << here.typed;
    }
}

TEST_F(performance_hint_test, of_the_ports_needs_no_entry_of_the_performance) {
    prepare("n09_crank_oil");
    kavetta.entries.kin_visc = "";
    EXPECT_EQ(performance_hint(kavetta), std::nullopt);
    end_outlet_at_180();
    EXPECT_EQ(performance_hint(kavetta), message::hint_outlet_ends_at_180);
}

TEST_F(performance_hint_test, changes_nothing) {
    prepare("n07_engine_oil_groove");
    kavetta.entries.kin_visc = "12,5";
    kavetta.entries.thick = "20";
    const entries typed = kavetta.entries;
    performance_hint(kavetta);
    EXPECT_EQ(kavetta.entries, typed);
    EXPECT_EQ(kavetta.design_params.thick, 10.0);
    EXPECT_EQ(kavetta.perf_results.power_max, 0.0);
}

TEST_F(performance_hint_test, stands_on_the_desk_before_the_press_in_both_languages) {
    prepare("n09_crank_oil");
    EXPECT_TRUE(hints_now().empty());
    end_outlet_at_180();
    EXPECT_TRUE(kavetta.hints.empty());
    EXPECT_EQ(hints_now(), std::vector<hint>{{"Outlet end angles of 180 leave no delivery"}});
    kavetta.app_state.language = GERMAN;
    EXPECT_EQ(hints_now(),
              std::vector<hint>{{"Endwinkel des Auslasses von 180 lassen keine Förderung"}});
    kavetta.enabling.calc_perf = false;
    EXPECT_TRUE(hints_now().empty()) << "nothing to press";
}

TEST_F(performance_hint_test, is_worked_out_anew_for_other_entries_or_forgotten_records) {
    prepare("n09_crank_oil");
    performance_hint_memory known;
    EXPECT_EQ(known.hint_for(kavetta), std::nullopt);
    kavetta.entries.vap_press = "761";
    EXPECT_EQ(known.hint_for(kavetta), performance_hint(kavetta));
    EXPECT_NE(known.hint_for(kavetta), std::nullopt);
    kavetta.entries.vap_press = "0.5";
    EXPECT_EQ(known.hint_for(kavetta), std::nullopt);
    end_outlet_at_180();
    known.forget();
    EXPECT_EQ(known.hint_for(kavetta), message::hint_outlet_ends_at_180);
}

TEST_F(performance_hint_test, is_known_while_the_records_stay) {
    prepare("n09_crank_oil");
    performance_hint_memory known;
    known.hint_for(kavetta);
    kavetta.port_params = port_params();  // behind its back
    EXPECT_EQ(known.hint_for(kavetta), std::nullopt);
    known.forget();
    EXPECT_NE(known.hint_for(kavetta), std::nullopt);
}

TEST_F(performance_hint_test, of_a_number_that_is_too_large_is_not_kept) {
    prepare("n09_crank_oil");
    performance_hint_memory known;
    kavetta.entries.vap_press = "1e999";
    EXPECT_EQ(known.hint_for(kavetta), performance_hint(kavetta));
    kavetta.entries.vap_press = "0.5";
    EXPECT_EQ(known.hint_for(kavetta), std::nullopt);
}

TEST_F(performance_hint_test, stands_in_the_message_of_the_failure) {
    prepare("n04_fuel");
    kavetta.entries.vap_press = "761";
    run_command(kavetta, person, [this] {
        calculate_performance(kavetta, person);
        return false;
    });
    ASSERT_EQ(person.messages.size(), 1U);
    EXPECT_TRUE(person.messages[0].ends_with(
        "\rHint: Vapour pressure is not below that of the atmosphere: no chamber fills"))
        << person.messages[0];
}

}  // namespace
}  // namespace kvt
