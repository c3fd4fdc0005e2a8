// Tests of the Design assist's command and switch.
#include "app/stages/design_assist.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/project_fixture.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "core/text_table.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <array>
#include <cmath>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

class design_assist_test : public project_test {
  protected:
    design_assist_test() {
        entries& boxes = kavetta.entries;
        boxes.volumereqd = "6";
        boxes.numlobes = "7";
        boxes.clearn = "0.12";
        boxes.thick = "10";
        boxes.shaftdiameter = "18";
        boxes.minmaterial = "2.5";
        boxes.maxdiameter = "52";
        boxes.axial_clear = "0.06";
        boxes.radial_clear = "0.15";
    }
};

TEST_F(design_assist_test, writes_what_it_found_into_the_entries) {
    EXPECT_EQ(design_assist(kavetta, person), assist_end::found);
    EXPECT_EQ(kavetta.entries.radinnroot, "14.25");
    EXPECT_EQ(kavetta.entries.ecc, "2.84");
    EXPECT_EQ(kavetta.entries.radouter, "7.25");
    EXPECT_EQ(kavetta.entries.outer_root, "22.77");
    EXPECT_EQ(kavetta.labels.capacity, "6.0241");
    EXPECT_TRUE(person.messages.empty());
    EXPECT_EQ(person.log, (texts{"busy", "not busy"}));
}

TEST_F(design_assist_test, uses_a_decimal_comma) {
    kavetta.entries.volumereqd = "0,5";
    kavetta.entries.shaftdiameter = "5";
    kavetta.entries.minmaterial = "1";
    EXPECT_EQ(design_assist(kavetta, person), assist_end::found);
    EXPECT_EQ(kavetta.entries.volumereqd, "0.5");
    // At 3.5: ecc 0.69, (4.82^2 - 3.5^2) * 0.031415927 = 0.345; at 4.25: ecc 0.84, (5.87^2
    // - 4.25^2) ... = 0.51503
    EXPECT_EQ(kavetta.entries.radinnroot, "4.25");
    EXPECT_EQ(kavetta.labels.capacity, "0.515");
}

TEST_F(design_assist_test, works_in_inches_with_steps_of_a_quarter_millimetre) {
    set_unit_labels(kavetta, length_unit_of(INCHES));
    entries& boxes = kavetta.entries;
    boxes.numlobes = "5";
    boxes.clearn = "0.1";
    boxes.thick = "0.5";
    boxes.shaftdiameter = "0.5";
    boxes.minmaterial = "0.1";
    boxes.maxdiameter = "4";
    EXPECT_EQ(design_assist(kavetta, person), assist_end::found);
    // 0.5/2 inch and 0.1 inch are 8.89 mm; seven steps later 10.64 mm, which is 0.418898 inch.
    EXPECT_EQ(boxes.radinnroot, "0.4189");
    EXPECT_EQ(boxes.ecc, "0.1392");
    EXPECT_EQ(boxes.radouter, "0.3445");
    EXPECT_EQ(boxes.outer_root, "21.2501");  // millimetres
    EXPECT_EQ(kavetta.labels.capacity, "6.271");
}

TEST_F(design_assist_test, takes_and_shows_the_capacity_in_the_chosen_unit) {
    kavetta.app_state.capacity_unit = 2;
    kavetta.entries.volumereqd = "1.5851";  // 1.5851 * 3.785 = 5.9996 cm3
    EXPECT_EQ(design_assist(kavetta, person), assist_end::found);
    EXPECT_EQ(kavetta.entries.radinnroot, "14.25");
    EXPECT_EQ(kavetta.labels.capacity, "1.5916");  // 6.0241 / 3.785
}

TEST_F(design_assist_test, tells_a_refused_entry_in_both_languages_and_writes_nothing) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        person.messages.clear();
        person.log.clear();
        kavetta.app_state.language = language;
        kavetta.entries.volumereqd = "0";
        kavetta.entries.ecc = "typed";
        EXPECT_EQ(design_assist(kavetta, person), assist_end::refused);
        EXPECT_EQ(person.messages,
                  texts{std::string(message_text(message::input_volumereqd, language))});
        EXPECT_EQ(kavetta.entries.ecc, "typed");
        EXPECT_EQ(person.log.size(), 1U);
    }
}

TEST_F(design_assist_test, cleans_the_entries_up_first) {
    kavetta.entries.thick = "";
    kavetta.entries.numlobes = "2";
    kavetta.entries.volumereqd = "";
    EXPECT_EQ(design_assist(kavetta, person), assist_end::refused);
    EXPECT_EQ(kavetta.entries.thick, "1");
    EXPECT_EQ(kavetta.entries.numlobes, "3");
    EXPECT_EQ(kavetta.entries.volumereqd, "0");
    EXPECT_EQ(person.messages,
              (texts{std::string(message_text(message::rotors_need_thickness, ENGLISH)),
                     std::string(message_text(message::lobe_number_minimum, ENGLISH)),
                     std::string(message_text(message::input_volumereqd, ENGLISH))}));
}

TEST_F(design_assist_test, leaves_root_and_eccentricity_when_the_rotors_do_not_fit) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        person.messages.clear();
        kavetta.app_state.language = language;
        kavetta.app_state.profiles_calculated = -1;
        kavetta.enabling.design_ports = true;
        kavetta.app_state.capacity_unit = 2;
        kavetta.entries.volumereqd = "1.5851";
        kavetta.entries.maxdiameter = "50";  // 50/2 - 2.5 = 22.5, below 22.77
        kavetta.entries.radouter = "9";
        EXPECT_EQ(design_assist(kavetta, person), assist_end::does_not_fit);
        EXPECT_EQ(person.messages,
                  texts{std::string(message_text(message::does_not_fit_diameter, language))});
        EXPECT_EQ(kavetta.entries.radinnroot, "14.25");
        EXPECT_EQ(kavetta.entries.ecc, "2.84");
        EXPECT_EQ(kavetta.entries.outer_root, "22.77");
        EXPECT_EQ(kavetta.entries.radouter, "9");
        EXPECT_EQ(kavetta.labels.capacity, "6.0241");  // cm3 at this point, in any unit
        EXPECT_EQ(kavetta.app_state.profiles_calculated, -1);
        EXPECT_TRUE(kavetta.enabling.design_ports);
        EXPECT_EQ(person.log.back(), "not busy");
    }
}

TEST_F(design_assist_test, clears_the_ports_and_wants_new_profiles) {
    kavetta.app_state.profiles_calculated = -1;
    kavetta.enabling.design_ports = true;
    kavetta.enabling.calc_perf = true;
    kavetta.entries.port_radii = "1.25";
    kavetta.design_view.inlet_portline.set(0, {});
    kavetta.design_view.inlet_portline.set(1, {});
    design_assist(kavetta, person);
    EXPECT_EQ(kavetta.app_state.profiles_calculated, 0);
    EXPECT_FALSE(kavetta.enabling.design_ports);
    EXPECT_FALSE(kavetta.enabling.calc_perf);
    EXPECT_TRUE(kavetta.enabling.mnudxf);
    EXPECT_EQ(kavetta.entries.port_radii, "");
    EXPECT_EQ(kavetta.design_view.inlet_portline.elements.size(), 1U);
}

TEST_F(design_assist_test, fails_without_a_message_of_its_own_when_a_value_is_no_number) {
    kavetta.entries.numlobes = "seven";
    EXPECT_FAILURE(design_assist(kavetta, person), failure::type_mismatch);
    kavetta.entries.numlobes = "7";
    kavetta.entries.volumereqd = "1E15";
    EXPECT_FAILURE(design_assist(kavetta, person), failure::overflow);
}

TEST_F(design_assist_test, ends_for_any_entries) {
    random_values random;
    const std::array<std::string entries::*, 9> boxes = {
        &entries::volumereqd,  &entries::numlobes,    &entries::shaftdiameter,
        &entries::clearn,      &entries::thick,       &entries::minmaterial,
        &entries::maxdiameter, &entries::axial_clear, &entries::radial_clear};
    int ended_well = 0;
    for (int run = property_count(300); run > 0; --run) {
        for (const auto box : boxes) {
            kavetta.entries.*box = number_text(std::pow(10.0, random.real(-12.0, 14.0)));
        }
        kavetta.entries.maxdiameter =
            random.whole(0, 1) == 0 ? "1E200" : kavetta.entries.maxdiameter;
        kavetta.entries.numlobes =
            number_text(random.whole(3, random.whole(0, 3) == 0 ? 100000 : 40));
        try {
            design_assist(kavetta, person);
            ++ended_well;
        } catch (const run_time_error&) {
            // a quotient by 0 or a value beyond its type ends the search
        }
    }
    EXPECT_GT(ended_well, 0);
}

TEST_F(design_assist_test, finds_designs_whose_profiles_have_the_required_capacity) {
    random_values random;
    int calculated = 0;
    for (int run = property_count(60); run > 0; --run) {
        const double required = random.real(0.5, 60.0);
        kavetta.entries.volumereqd = number_text(required);
        kavetta.entries.numlobes = number_text(random.whole(4, 12));
        kavetta.entries.thick = number_text(random.real(4.0, 40.0));
        kavetta.entries.maxdiameter = "500";
        person.messages.clear();
        ASSERT_EQ(design_assist(kavetta, person), assist_end::found);
        ASSERT_GT(val(kavetta.labels.capacity), required);
        const std::string shown = kavetta.labels.capacity;
        if (calculate_profiles(kavetta, person) == run_end::ok) {
            ++calculated;
            EXPECT_EQ(kavetta.labels.capacity, shown);
        }
    }
    EXPECT_GT(calculated, 0);
}

TEST_F(design_assist_test, is_off_at_the_start_and_shows_green_when_on) {
    EXPECT_EQ(look_of_assist(kavetta.app_state),
              (assist_look{"Assist OFF", false, true, false, true}));
    set_assist(kavetta, true);
    EXPECT_EQ(look_of_assist(kavetta.app_state),
              (assist_look{"Assist ON", true, true, true, true}));
    set_assist(kavetta, false);
    EXPECT_EQ(look_of_assist(kavetta.app_state),
              (assist_look{"Assist OFF", false, true, false, true}));
}

TEST_F(design_assist_test, is_off_and_hidden_after_open_until_it_is_switched_on) {
    set_assist(kavetta, true);
    open_project_file(kavetta, person, project_file("pump.KVT", project_lines()));
    EXPECT_EQ(look_of_assist(kavetta.app_state),
              (assist_look{"Assist OFF", false, false, false, false}));
    set_assist(kavetta, false);
    EXPECT_FALSE(look_of_assist(kavetta.app_state).designer_visible);
    set_assist(kavetta, true);
    EXPECT_EQ(look_of_assist(kavetta.app_state),
              (assist_look{"Assist ON", true, true, true, true}));
}

TEST_F(design_assist_test, is_off_and_hidden_after_new) {
    set_assist(kavetta, true);
    person.project_names = {"pump"};
    person.answers = {answer::yes};
    new_project(kavetta, person);
    EXPECT_EQ(look_of_assist(kavetta.app_state),
              (assist_look{"Assist OFF", false, false, false, false}));
}

}  // namespace
}  // namespace kvt
