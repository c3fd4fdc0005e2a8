// Language, units and the capacity unit.
#include "app/desk/unit_commands.hpp"

#include "app/program.hpp"
#include "core/capacity_unit.hpp"
#include "support/scripted_user.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(capacity_unit_change, rewrites_the_required_capacity_with_four_decimals_even_for_factor_1) {
    program kavetta;
    kavetta.entries.volumereqd = "12.34565 l";
    kavetta.labels.capacity = "0.0";
    select_capacity_unit(kavetta, capacity_unit_code("CC/Rev"));
    EXPECT_EQ(kavetta.entries.volumereqd, "12.3456");
    EXPECT_EQ(kavetta.labels.capacity, "0");
    EXPECT_EQ(kavetta.labels.units_label, "CC/Rev");
    EXPECT_EQ(kavetta.app_state.capacity_unit, 4);
}

TEST(capacity_unit_change, converts_both_capacities_with_the_factor_of_the_table) {
    program kavetta;
    kavetta.entries.volumereqd = "10";
    kavetta.labels.capacity = "100";
    select_capacity_unit(kavetta, capacity_unit_code("USGall/Min/1000rpm"));
    EXPECT_EQ(kavetta.entries.volumereqd, "2.642");  // 10 / 3.785 = 2.64200...
    EXPECT_EQ(kavetta.labels.capacity, "26.4201");   // 100 / 3.785 = 26.42007...
    select_capacity_unit(kavetta, capacity_unit_code("Cu In/Rev"));
    EXPECT_EQ(kavetta.labels.capacity, "6.103");  // 26.4201 * 0.231 = 6.10304...
    select_capacity_unit(kavetta, capacity_unit_code("USGall/Min/1000rpm"));
    EXPECT_EQ(kavetta.labels.capacity, "26.4199")
        << "there and back can change the last digits";  // 6.103 / 0.231
}

TEST(capacity_unit_change, ignores_a_text_that_is_not_in_the_list) {
    program kavetta;
    kavetta.entries.volumereqd = "12.34565";
    select_capacity_unit(kavetta, capacity_unit_code("Gallons"));
    EXPECT_EQ(kavetta.entries.volumereqd, "12.34565");
    EXPECT_EQ(kavetta.labels.unittype, "Lit/Min/1000rpm");
}

TEST(unit_labels, change_no_entry) {
    program kavetta;
    kavetta.entries.thick = "25.4";
    set_unit_labels(kavetta, length_unit_of(INCHES));
    EXPECT_EQ(kavetta.entries.thick, "25.4");
    EXPECT_EQ(kavetta.app_state.drawing_units, INCHES);
    EXPECT_EQ(kavetta.captions.of("Perffrm", "Label7"), "Pressure Range (psi)");
    EXPECT_EQ(kavetta.captions.of("portdes", "Label11"), "Width (inches)");
    set_unit_labels(kavetta, length_unit_of(MILLIMETRES));
    EXPECT_EQ(kavetta.captions.of("Perffrm", "Label7"), "Pressure Range (bar)");
}

TEST(captions, follow_the_flag_and_the_units) {
    program kavetta;
    scripted_user person;
    set_unit_labels(kavetta, length_unit_of(INCHES));
    choose_language(kavetta, person, GERMAN);
    EXPECT_EQ(kavetta.captions.of("MDIForm1", "mnufile"), "Datei");
    EXPECT_EQ(kavetta.captions.of("Form1", ""), "Entwurf");
    EXPECT_EQ(kavetta.captions.of("Perffrm", "Label7"), "Druckbereich (psi)");
    EXPECT_EQ(kavetta.captions.of("portdes", "Label11"), "Breite ('')");
    EXPECT_EQ(person.log, std::vector<std::string>{"unload perf_res"});

    choose_language(kavetta, person, ENGLISH);
    EXPECT_EQ(kavetta.captions.of("MDIForm1", "mnufile"), "File");
    EXPECT_EQ(kavetta.captions.of("Perffrm", "Label7"), "Pressure Range (psi)");
    EXPECT_EQ(person.log.size(), 2U) << "also for the language already set";
}

TEST(captions, of_the_dialogs_at_the_start_change_back_to_english) {
    program kavetta;
    scripted_user person;
    choose_language(kavetta, person, GERMAN);
    EXPECT_EQ(kavetta.captions.of("Form2", "new"), "Neu");
    EXPECT_EQ(kavetta.captions.of("newprojectname", "lblLabels"), "Planen Sie Namen:");
    choose_language(kavetta, person, ENGLISH);
    EXPECT_EQ(kavetta.captions.of("Form2", "new"), "New");
    EXPECT_EQ(kavetta.captions.of("newprojectname", "lblLabels"), "Project Name:");
}

TEST(captions, of_forms_with_design_time_english_stay_german_after_the_change_back) {
    program kavetta;
    scripted_user person;
    choose_language(kavetta, person, GERMAN);
    choose_language(kavetta, person, ENGLISH);
    EXPECT_EQ(kavetta.captions.of("Form3", ""), "CNC Hat Dateientyp Ausgegeben");
    EXPECT_EQ(kavetta.captions.of("Form4", ""), "Entwerfenpaket W\xC3\xA4hlen Sie Aus");
}

TEST(captions, keep_their_design_time_text_for_an_unknown_language) {
    program kavetta;
    kavetta.app_state.language = 0;
    set_captions(kavetta);
    EXPECT_EQ(kavetta.captions.of("Form1", "Label3"), "Eccentricity");
}

}  // namespace
}  // namespace kvt
