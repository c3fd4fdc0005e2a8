// The CNC output dialog: its checks in their order and in both languages, its dialogs, its files.
#include "app/files/cnc_output.hpp"

#include "base/text_file.hpp"
#include "core/text_table.hpp"
#include "output/cnc/cnc_lines.hpp"
#include "support/cnc_design.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

class cnc_output : public testing::Test {
  protected:
    cnc_output() {
        kavetta = design_with_ports("n07_engine_oil_groove");
        open();
    }
    /// A fresh form with a resolution and tools that fit.
    void open() {
        form = open_cnc_form(kavetta);
        form.machine_res_combo = "0.001";
        form.toolsize = "2";
        form.groovetooltext = "1";
    }
    void tick(std::string_view name) {
        tick_cnc_file(kavetta, form, *find_file(file_group::cnc, name), true);
    }
    void untick(std::string_view name) {
        tick_cnc_file(kavetta, form, *find_file(file_group::cnc, name), false);
    }
    void tick_all() {
        for (const written_file& file : FILES) {
            tick(file.name);
        }
    }
    bool write() { return write_cnc_files(kavetta, person, form); }
    /// The message of a refused press, in a language.
    std::string refusal(std::int16_t language) {
        kavetta.app_state.language = language;
        cnc_form copy = form;
        person.messages.clear();
        EXPECT_FALSE(write_cnc_files(kavetta, person, copy));
        EXPECT_EQ(person.messages.size(), 1U);
        EXPECT_TRUE(person.dialogs.empty());
        return person.messages.empty() ? "" : person.messages[0];
    }

    static inline const std::span<const written_file> FILES = files_of(file_group::cnc);
    program kavetta;
    scripted_user person;
    cnc_form form;
    temporary_folder folder;
};

}  // namespace

TEST_F(cnc_output, opens_with_the_units_and_five_resolutions) {
    EXPECT_EQ(form.toolunits, "mm");
    EXPECT_EQ(form.machine_res_items,
              (std::vector<std::string>{"0.01", "0.001", "0.0001", "0.00001", "0.000001"}));
    EXPECT_FALSE(form.groove_entry_shown);
    kavetta.app_state.drawing_units = INCHES;
    kavetta.decimal_mark = ',';
    const cnc_form inches = open_cnc_form(kavetta);
    EXPECT_EQ(inches.toolunits, "Inches");
    EXPECT_EQ(inches.machine_res_items[4], "0,000001");
    EXPECT_EQ(inches.machine_res_combo, "");
}

TEST_F(cnc_output, shows_the_groove_tool_for_the_outlet_pocket_of_a_groove) {
    tick("outlet_pocket");
    EXPECT_TRUE(form.groove_entry_shown);
    untick("outlet_pocket");
    EXPECT_FALSE(form.groove_entry_shown);
    EXPECT_EQ(form.groovetooltext, "");
    kavetta.entries.metering_groove = "0";
    tick("outlet_pocket");
    EXPECT_FALSE(form.groove_entry_shown);
}

TEST_F(cnc_output, asks_for_a_resolution_first) {
    form.machine_res_combo = form.toolsize = "";
    tick("inner_offset");
    EXPECT_EQ(refusal(ENGLISH),
              "Enter a resolution for the CNC machine you will use\r(minimum movement of machine)");
    EXPECT_EQ(refusal(GERMAN),
              "Tragen Sie eine Beschlussfassung für die CNC Maschine ein, die Sie benutzen werden "
              "(Mindestbewegung der "
              "Maschine)");
}

TEST_F(cnc_output, asks_for_the_tool_of_each_file_that_needs_one) {
    form.toolsize = "";
    for (const char* name : {"inner_offset", "inner_offset_checked", "outer_offset",
                             "outer_offset_checked", "inlet_pocket", "outlet_pocket"}) {
        form.ticked = {};
        tick(name);
        EXPECT_EQ(refusal(ENGLISH), "You must enter a tool size for this option") << name;
        EXPECT_EQ(refusal(GERMAN), "Sie müssen eine Werkzeuggröße für diese Option eintragen")
            << name;
    }
}

TEST_F(cnc_output, asks_for_the_tool_of_the_groove) {
    form.groovetooltext = "";
    tick("outlet_pocket");
    EXPECT_EQ(refusal(ENGLISH), "You must enter a metering groove tool size for this option");
    EXPECT_EQ(refusal(GERMAN),
              "Sie müssen eine messende Rillenwerkzeuggröße für diese Option eintragen");
    kavetta.entries.metering_groove = "0";
    person.files = {std::nullopt};
    EXPECT_TRUE(write());
}

TEST_F(cnc_output, refuses_a_tool_larger_than_the_lobes_for_the_inner_rotor_only) {
    form.toolsize = "15,1";
    for (const char* name : {"inner_offset", "inner_offset_checked"}) {
        form.ticked = {};
        tick(name);
        EXPECT_EQ(
            refusal(ENGLISH),
            "This tool diameter is too great for this rotor. Maximum tool size allowed is 15 mm");
        EXPECT_EQ(refusal(GERMAN),
                  "Dieser Werkzeugdurchmesser ist zu groß für diesen Rotor. Maximale "
                  "Werkzeuggröße, die erlaubt wird, "
                  "ist15 mm");
    }
    form.ticked = {};
    tick("outer_offset");
    person.files = {std::nullopt};
    EXPECT_TRUE(write());
}

TEST_F(cnc_output, writes_points_for_commas_back_even_when_a_later_check_fails) {
    form.toolsize = "15,1";
    form.groovetooltext = "0,5";
    tick("inner_offset");
    EXPECT_FALSE(write());
    EXPECT_EQ(form.toolsize, "15.1");
    EXPECT_EQ(form.groovetooltext, "0.5");
    EXPECT_EQ(kavetta.cnc_choices.tool_diameter, 15.1);
}

TEST_F(cnc_output, tells_of_every_file_in_one_line) {
    tick("inner_xy");
    tick("inner_lathe");
    tick("outer_xy");
    person.files = {folder.file("a.cnc"), std::nullopt, folder.file("none/b.cnc")};
    EXPECT_TRUE(write());
    EXPECT_EQ(person.statuses,
              std::vector<std::string>{"Written: " + folder.file("a.cnc") +
                                       "; The file could not be saved: " +
                                       folder.file("none/b.cnc") + ": Path not found"});
    person.files = {std::nullopt, std::nullopt, std::nullopt};
    EXPECT_TRUE(write());
    EXPECT_EQ(person.statuses.size(), 1U);
}

TEST_F(cnc_output, points_at_the_entry_that_it_refuses) {
    const auto focus_after_refusal = [&] {
        EXPECT_FALSE(write());
        return person.log.back();
    };
    tick("inner_offset");
    form.toolsize = "15,1";
    EXPECT_EQ(focus_after_refusal(), "focus toolsize");
    form.toolsize = "";
    EXPECT_EQ(focus_after_refusal(), "focus toolsize");
    form.machine_res_combo = "";
    EXPECT_EQ(focus_after_refusal(), "focus machine_res_combo");
    form.machine_res_combo = "0.001";
    form.toolsize = "1";
    form.groovetooltext = "";
    tick("outlet_pocket");
    EXPECT_EQ(focus_after_refusal(), "focus groovetooltext");
}

TEST_F(cnc_output, refuses_a_tool_larger_than_the_corners_and_empties_its_entry) {
    form.toolsize = "3.1";
    for (const char* name : {"inlet_pocket", "outlet_pocket"}) {
        form.ticked = {};
        tick(name);
        EXPECT_EQ(
            refusal(ENGLISH),
            "Max tool size to cut the designed port radius is 3mm.\rSelect a suitable tool size");
        EXPECT_EQ(refusal(GERMAN),
                  "Max.werkzeuggröße, den entworfenen Hafenradius zu schneiden, ist 3mm.\rWählen "
                  "Sie eine passende "
                  "Werkzeuggröße aus");
    }
    EXPECT_FALSE(write());
    EXPECT_EQ(form.toolsize, "");
    EXPECT_EQ(person.log.back(), "focus toolsize");
}

TEST_F(cnc_output, refuses_a_tool_wider_than_the_groove_and_empties_its_entry) {
    form.groovetooltext = "1.6";
    tick("outlet_pocket");
    EXPECT_EQ(
        refusal(ENGLISH),
        "Max tool size to cut the designed metering groove is 1.5mm.\rSelect a suitable tool size");
    EXPECT_EQ(refusal(GERMAN),
              "Max.werkzeuggröße, die entworfene Messenrille zu schneiden, ist 1.5mm.\rWählen Sie "
              "eine passende "
              "Werkzeuggröße aus");
    EXPECT_FALSE(write());
    EXPECT_EQ(form.groovetooltext, "");
    EXPECT_EQ(form.toolsize, "2");
    EXPECT_EQ(person.log.back(), "focus groovetooltext");
}

TEST_F(cnc_output, compares_inches_as_typed_with_a_radius_in_millimetres) {
    kavetta.app_state.drawing_units = INCHES;
    form.toolsize = "2.9";  // 73 mm would never fit a corner of 1.5 mm
    tick("inlet_pocket");
    person.files = {std::nullopt};
    EXPECT_TRUE(write());
    EXPECT_TRUE(person.messages.empty());
}

/// Everything is wrong at once, and put right in the order in which it is told.
TEST_F(cnc_output, tells_rotor_then_ports_then_groove_then_resolution) {
    const auto told_first = [this] {
        person.messages.clear();
        EXPECT_FALSE(write());
        EXPECT_EQ(person.messages.size(), 1U);
        return person.messages.empty() ? "" : person.messages[0];
    };
    for (const char* name : {"inner_offset", "inlet_pocket", "outlet_pocket"}) {
        tick(name);
    }
    form.machine_res_combo = "0.5";
    form.toolsize = "15.1";
    form.groovetooltext = "1.6";
    EXPECT_TRUE(told_first().starts_with("This tool diameter is too great for this rotor."));
    EXPECT_EQ(form.toolsize, "15.1") << "a tool too great for the rotor is not emptied";
    form.toolsize = "3.1";
    EXPECT_TRUE(told_first().starts_with("Max tool size to cut the designed port radius is 3mm."));
    EXPECT_EQ(form.groovetooltext, "1.6") << "the groove was not looked at";
    untick("inlet_pocket");
    form.toolsize = "3.1";
    EXPECT_TRUE(told_first().starts_with("Max tool size to cut the designed port radius is 3mm."));
    EXPECT_EQ(form.groovetooltext, "1.6");
    form.toolsize = "3";
    EXPECT_TRUE(told_first().starts_with("Max tool size to cut the designed metering groove is"));
    form.groovetooltext = "1.5";
    EXPECT_TRUE(told_first().starts_with("Enter a resolution for the CNC machine"));
    EXPECT_TRUE(person.dialogs.empty());
    form.machine_res_combo = "0.01";
    person.files = {std::nullopt, std::nullopt};
    EXPECT_TRUE(write());
}

/// 14.9 inches would never pass lobes of 7.5 mm.
TEST_F(cnc_output, compares_inches_as_typed_with_the_lobes_in_millimetres) {
    kavetta.app_state.drawing_units = INCHES;
    form = open_cnc_form(kavetta);
    form.machine_res_combo = "0.001";
    tick("inner_offset");
    form.toolsize = "15.1";
    EXPECT_EQ(refusal(ENGLISH),
              "This tool diameter is too great for this rotor. Maximum tool size allowed is 15 "
              "Inches");
    kavetta.app_state.language = ENGLISH;
    form.toolsize = "14.9";
    person.messages.clear();
    person.files = {std::nullopt};
    EXPECT_TRUE(write());
    EXPECT_TRUE(person.messages.empty());
}

TEST(resolution_digits, knows_ten_texts_and_keeps_the_last_choice_for_others) {
    EXPECT_EQ(resolution_digits("0.01", 0), 2);
    EXPECT_EQ(resolution_digits("0,001", 0), 3);
    EXPECT_EQ(resolution_digits("0.0001", 0), 4);
    EXPECT_EQ(resolution_digits("0,00001", 0), 5);
    EXPECT_EQ(resolution_digits("0.000001", 0), 6);
    for (const char* text : {"0.1", ".01", "0.010", " 0.01", "1", "abc"}) {
        EXPECT_EQ(resolution_digits(text, 5), 5) << text;
        EXPECT_EQ(resolution_digits(text, 0), 0) << text;
    }
}

TEST_F(cnc_output, asks_for_a_resolution_that_it_knows_unless_one_was_chosen_before) {
    form.machine_res_combo = "0.5";
    EXPECT_EQ(refusal(ENGLISH),
              "Enter a resolution for the CNC machine you will use\r(minimum movement of machine)");
    form.machine_res_combo = "0.01";
    EXPECT_TRUE(write());
    form.machine_res_combo = "0.5";
    EXPECT_TRUE(write());
    EXPECT_EQ(kavetta.cnc_choices.cnc_res_digits, 2);
}

TEST_F(cnc_output, closes_and_writes_nothing_without_a_tick) {
    EXPECT_TRUE(write());
    EXPECT_TRUE(person.dialogs.empty());
    EXPECT_EQ(person.log, std::vector<std::string>{"unload Form3"});
}

TEST_F(cnc_output, asks_for_every_file_in_the_order_of_the_writers) {
    tick_all();
    person.files.assign(FILES.size(), std::nullopt);
    EXPECT_TRUE(write());
    ASSERT_EQ(person.dialogs.size(), FILES.size());
    for (std::size_t i = 0; i < FILES.size(); ++i) {
        const std::string title = std::string(FILES[i].name) + "_title";
        EXPECT_EQ(person.dialogs[i].title, "Kavetta V2021" + std::string(cnc_text(title, ENGLISH)));
    }
    const file_dialog& dialog = person.dialogs[0];
    EXPECT_EQ(dialog.title, "Kavetta V2021 - Save Inner Rotor Profile - XY Co-ordinates");
    EXPECT_EQ(dialog.filter, "All files|*.*|CNC|*.cnc");
    EXPECT_EQ(dialog.filter_index, 2);
    EXPECT_EQ(dialog.default_extension, "cnc");
    EXPECT_EQ(dialog.file_name, "");
    EXPECT_EQ(dialog.flags, 2);
    EXPECT_TRUE(dialog.saving);
}

TEST_F(cnc_output, has_german_titles) {
    kavetta.app_state.language = GERMAN;
    tick_all();
    person.files.assign(FILES.size(), std::nullopt);
    EXPECT_TRUE(write());
    EXPECT_EQ(person.dialogs[3].title,
              "Kavetta V2021 - Sparen Sie Innere RotorG-codes Für Drehmaschine (X und C)");
    EXPECT_EQ(person.dialogs[14].title,
              "Kavetta V2021 - Sparen Sie Auslaufhafenprofil - Taschenfräsen");
}

TEST_F(cnc_output, saves_the_files_that_get_a_path_and_skips_the_others) {
    tick("outer_xy");
    tick("outer_gcode");
    tick("inlet_xy");
    person.files = {folder.file("outer.cnc"), std::nullopt, ""};
    EXPECT_TRUE(write());
    EXPECT_EQ(read_file(folder / "outer.cnc"), cnc_bytes(kavetta, "outer_xy"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
    EXPECT_EQ(kavetta.app_state.cnc_file_xyouter, folder.file("outer.cnc"));
    EXPECT_EQ(kavetta.app_state.cnc_file_outer, "");
}

TEST_F(cnc_output, tells_how_many_cutter_centres_are_on_the_wrong_side) {
    tick("inner_offset");
    tick("inner_offset_checked");
    person.files = {folder.file("offset.cnc"), folder.file("checked.cnc")};
    EXPECT_TRUE(write());
    const std::string notice = notice_of(kavetta, *find_file(file_group::cnc, "inner_offset"));
    EXPECT_TRUE(
        notice.starts_with("Cutter positions of this file on the wrong side of the trochoid: "))
        << notice;
    EXPECT_EQ(person.messages, std::vector<std::string>{notice});
    // The notice stands behind its file, before the next dialog.
    EXPECT_EQ(person.log[1], "message " + notice);
    kavetta.app_state.language = GERMAN;
    EXPECT_TRUE(notice_of(kavetta, *find_file(file_group::cnc, "inner_offset"))
                    .starts_with("Schneiderpositionen dieser Datei auf der falschen Seite"));
}

TEST_F(cnc_output, saves_what_a_failing_writer_got_to_and_goes_on) {
    kavetta.rotor_profiles.inner_x[0] = 0.0;
    tick("inner_lathe");
    tick("outer_gcode");
    person.files = {folder.file("lathe.cnc"), folder.file("gcode.cnc")};
    EXPECT_TRUE(write());
    EXPECT_TRUE(person.messages.empty());
    EXPECT_EQ(person.statuses,
              std::vector<std::string>{"Incomplete: " + folder.file("lathe.cnc") +
                                       ": Division by zero; Written: " + folder.file("gcode.cnc")});
    EXPECT_TRUE(read_file(folder / "lathe.cnc")
                    .ends_with("//The coordinates in this file are in MM.//\r\n"));
    EXPECT_EQ(read_file(folder / "gcode.cnc"), cnc_bytes(kavetta, "outer_gcode"));
}

TEST_F(cnc_output, never_changes_the_design) {
    const entries boxes = kavetta.entries;
    const zeroed_array outer_xy = kavetta.rotor_profiles.outer_xy;
    const zeroed_array troch_x = kavetta.rotor_profiles.troch_x;
    tick_all();
    person.files.assign(FILES.size(), folder.file("any.cnc"));
    EXPECT_TRUE(write());
    EXPECT_EQ(kavetta.entries, boxes);
    EXPECT_EQ(kavetta.rotor_profiles.outer_xy, outer_xy);
    EXPECT_EQ(kavetta.rotor_profiles.troch_x, troch_x);
}

TEST_F(cnc_output, hints_at_a_refused_groove_in_the_files_of_the_outlet_only) {
    kavetta.port_params.has_groove = false;
    note_refused_groove(kavetta, *find_file(file_group::cnc, "inlet_xy"));
    EXPECT_TRUE(kavetta.hints.empty());
    note_refused_groove(kavetta, *find_file(file_group::cnc, "outlet_xy"));
    ASSERT_EQ(kavetta.hints.size(), 1U);
    EXPECT_EQ(kavetta.hints[0].text,
              "The metering groove was refused: the port files are written without it.");
    kavetta.hints.clear();
    kavetta.entries.metering_groove = "0";
    note_refused_groove(kavetta, *find_file(file_group::cnc, "outlet_xy"));
    EXPECT_TRUE(kavetta.hints.empty());
}

TEST_F(cnc_output, writes_no_codes_that_would_leave_their_outline) {
    EXPECT_EQ(refused_gcode_note(kavetta, *find_file(file_group::cnc, "inlet_gcode")), "");
    kavetta.port_params.inlet.built.f = 0.0;
    EXPECT_EQ(refused_gcode_note(kavetta, *find_file(file_group::cnc, "inlet_xy")), "");
    EXPECT_EQ(refused_gcode_note(kavetta, *find_file(file_group::cnc, "outlet_gcode")), "");
    tick("inlet_gcode");
    EXPECT_TRUE(write());
    EXPECT_TRUE(person.dialogs.empty());
    ASSERT_EQ(kavetta.hints.size(), 1U);
    EXPECT_EQ(kavetta.hints[0].weight, hint_weight::scraps_part);
    EXPECT_TRUE(kavetta.hints[0].text.starts_with("The G-codes cannot follow the outline"));
}

}  // namespace kvt
