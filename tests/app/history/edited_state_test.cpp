// Tests of what undoing brings back, and what it leaves alone.
#include "app/history/edited_state.hpp"

#include "app/desk/autosave.hpp"
#include "app/desk/unit_commands.hpp"
#include "app/files/project_entries.hpp"
#include "app/history/edit_history.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_assist.hpp"
#include "app/stages/design_ports.hpp"
#include "app/stages/entry_handlers.hpp"
#include "app/stages/porting_type.hpp"
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "core/capacity_unit.hpp"
#include "support/open_design.hpp"
#include "support/property_runs.hpp"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

class edited_state_test : public testing::Test {
  protected:
    void restore(const edited_state& state) { restore_edited_state(kavetta, person, state); }
    edited_state now() const { return edited_state_of(kavetta, nullptr); }

    program kavetta = opened_design("n07_engine_oil_groove");
    scripted_user person;
};

TEST_F(edited_state_test, shares_what_did_not_change) {
    const edited_state before = now();
    kavetta.app_state.language = GERMAN;
    const edited_state after = edited_state_of(kavetta, &before);
    EXPECT_EQ(after.boxes, before.boxes);
    EXPECT_EQ(after.project, before.project);
    EXPECT_FALSE(is_same(before, after));
    kavetta.entries.ecc += "1";
    EXPECT_NE(edited_state_of(kavetta, &after).boxes, after.boxes);
}

TEST_F(edited_state_test, brings_entries_units_language_and_project_back) {
    const edited_state before = now();
    const std::string lobes = kavetta.entries.numlobes;
    person.answers = {answer::yes};
    clear_design(kavetta, person);
    choose_language(kavetta, person, GERMAN);
    set_unit_labels(kavetta, length_unit_of(INCHES));
    kavetta.app_state.project_name = "other";
    EXPECT_FALSE(is_same(now(), before));
    restore(before);
    EXPECT_TRUE(is_same(now(), before));
    EXPECT_EQ(kavetta.entries.numlobes, lobes);
    EXPECT_EQ(kavetta.captions.of("Form1", "Label3"), "Eccentricity");
    EXPECT_EQ(kavetta.captions.of("portdes", "Label11"), "Width (mm)");
    EXPECT_EQ(kavetta.labels.title, before.project->title);
}

TEST_F(edited_state_test, leaves_results_notes_and_the_turned_view_alone) {
    const edited_state before = now();
    kavetta.entries.thick = "23";
    ASSERT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    design_ports(kavetta, person);
    kavetta.entries.rotated_angle = "12.5";
    const program calculated = kavetta;
    restore(before);
    EXPECT_EQ(kavetta.entries.thick, before.boxes->thick);
    EXPECT_EQ(kavetta.entries.rotated_angle, "12.5");
    EXPECT_EQ(kavetta.design_params.thick, 23.0);
    EXPECT_EQ(kavetta.labels.capacity, calculated.labels.capacity);
    EXPECT_EQ(kavetta.stage_entries, calculated.stage_entries);
    for (const enabling_field& field : enabling_fields()) {
        EXPECT_EQ(kavetta.enabling.*field.member, calculated.enabling.*field.member) << field.name;
    }
}

TEST_F(edited_state_test, shows_the_capacity_in_the_unit_that_comes_back) {
    kavetta.labels.capacity = "7.6";
    kavetta.entries.volumereqd = "7,60";
    const edited_state before = now();
    const std::int16_t unit = kavetta.app_state.capacity_unit;
    select_capacity_unit(kavetta, static_cast<std::int16_t>(unit == 2 ? 3 : 2));
    EXPECT_NE(kavetta.entries.volumereqd, "7,60");
    restore(before);
    EXPECT_EQ(kavetta.app_state.capacity_unit, unit);
    EXPECT_EQ(kavetta.labels.units_label, find_capacity_unit(unit)->list_text);
    EXPECT_EQ(kavetta.entries.volumereqd, "7,60") << "as it was typed";
    EXPECT_NEAR(std::stod(kavetta.labels.capacity), 7.6, 1e-3);
}

TEST_F(edited_state_test, opens_the_groove_entries_as_the_tick_says) {
    set_porting_check(kavetta, &entries::metering_groove, "1");
    const edited_state ticked = now();
    set_porting_check(kavetta, &entries::metering_groove, "0");
    EXPECT_FALSE(kavetta.enabling.groove_width);
    restore(ticked);
    EXPECT_TRUE(kavetta.enabling.groove_width);
}

TEST_F(edited_state_test, entries_of_another_project_count_as_unsaved) {
    const edited_state before = now();
    load_project(kavetta, person, std::string(KVT_TEST_DATA) + "/designs/n04_fuel.KVT");
    note_new_entries(kavetta);
    EXPECT_FALSE(has_unsaved_changes(kavetta));
    restore(before);
    EXPECT_TRUE(has_unsaved_changes(kavetta));
    EXPECT_EQ(kavetta.app_state.project_path, before.project->path);
}

/// The project file but for the capacity, which is a result.
std::string file_of(const program& kavetta) {
    project_record record = project_record_of(kavetta, kavetta.app_state.project_path);
    record.capacity.clear();
    return write_project(record);
}

/// Someone who types, ticks, chooses and presses at random, with the history beside.
class random_work {
  public:
    explicit random_work(random_values& random) : random_(random) {
        history.begin(edited_state_of(kavetta, nullptr));
        files.push_back(file_of(kavetta));
    }

    void act() {
        const std::size_t chosen =
            random_.whole(0, 11) < 6 ? 0 : static_cast<std::size_t>(random_.whole(1, 8));
        (this->*ACTIONS[chosen])();
        files.resize(history.size());
        files[history.position()] = file_of(kavetta);
    }

    void go_to(std::size_t step) {
        restore_edited_state(kavetta, person, history.step(step).state);
        history.move_to(step);
    }

    program kavetta;
    edit_history history;
    std::vector<std::string> files;  ///< behind each step

  private:
    void note_command() {
        history.note_command(edited_state_of(kavetta, &history.present()), nullptr);
    }
    void type() {
        const auto fields = entry_fields();
        const entry_field& field =
            fields[static_cast<std::size_t>(random_.whole(0, static_cast<int>(fields.size()) - 1))];
        std::string& text = kavetta.entries.*field.member;
        if (field.kind == entry_kind::check) {
            text = random_.whole(0, 1) == 0 ? "0" : "1";
        } else {
            text = random_.text("0123456789.,-E", 7);
        }
        history.note_typing(edited_state_of(kavetta, &history.present()));
        leave(field.name);
        history.note_left_entry(edited_state_of(kavetta, &history.present()));
    }
    /// As on the desk, where a failure takes the handler back.
    void leave(std::string_view box) {
        const entries typed = kavetta.entries;
        try {
            leave_entry(kavetta, person, box);
        } catch (const run_time_error&) {
            kavetta.entries = typed;
        }
    }
    void tick() {
        set_porting_check(kavetta, &entries::metering_groove, random_.whole(0, 1) == 0 ? "0" : "1");
        note_command();
    }
    void choose_unit() {
        set_unit_labels(kavetta, length_unit_of(random_.whole(0, 1) == 0 ? MILLIMETRES : INCHES));
        note_command();
    }
    void choose_capacity_unit() {
        const bool is_small = std::abs(val(kavetta.entries.volumereqd)) < 1e6;
        if (is_small) {
            select_capacity_unit(kavetta, static_cast<std::int16_t>(random_.whole(1, 5)));
        }
        note_command();
    }
    void choose_other_language() {
        choose_language(kavetta, person, random_.whole(0, 1) == 0 ? ENGLISH : GERMAN);
        note_command();
    }
    void clear() {
        person.answers.push_back(random_.whole(0, 1) == 0 ? answer::yes : answer::no);
        clear_design(kavetta, person);
        person.answers.clear();
        note_command();
    }
    void clear_all_ports() {
        clear_ports(kavetta, person);
        note_command();
    }
    void open() {
        const std::array names = {"n07_engine_oil_groove", "n04_fuel"};
        load_project(kavetta, person,
                     std::string(KVT_TEST_DATA) + "/designs/" +
                         names.at(static_cast<std::size_t>(random_.whole(0, 1))) + ".KVT");
        note_command();
    }
    void assist() {
        set_assist(kavetta, random_.whole(0, 1) == 0);
        note_command();
    }

    static constexpr std::array<void (random_work::*)(), 9> ACTIONS = {
        &random_work::type,
        &random_work::tick,
        &random_work::choose_unit,
        &random_work::choose_capacity_unit,
        &random_work::choose_other_language,
        &random_work::clear,
        &random_work::clear_all_ports,
        &random_work::open,
        &random_work::assist,
    };

    random_values& random_;
    scripted_user person;
};

TEST(edited_states, come_back_to_equal_project_files_at_every_step) {
    constexpr int ROUNDS = 6;
    constexpr int EVENTS = 900;
    random_values random;
    for (int round = 0; round < ROUNDS; ++round) {
        random_work work(random);
        for (int event = 0; event < EVENTS; ++event) {
            work.act();
            if (random.whole(0, 30) == 0) {
                work.go_to(static_cast<std::size_t>(
                    random.whole(0, static_cast<int>(work.history.size()) - 1)));
            }
        }
        work.go_to(work.history.size() - 1);
        const std::size_t last = work.history.size() - 1;
        for (std::size_t step = last; step-- > 0;) {
            work.go_to(step);
            ASSERT_EQ(file_of(work.kavetta), work.files[step]) << "undone to " << step;
        }
        for (std::size_t step = 1; step <= last; ++step) {
            work.go_to(step);
            ASSERT_EQ(file_of(work.kavetta), work.files[step]) << "done again to " << step;
        }
    }
}

}  // namespace
}  // namespace kvt
