// Tests of what is left behind a failure that no command handled.
#include "app/desk/run_command.hpp"

#include "app/files/project_fixture.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "base/checked_math.hpp"
#include "support/open_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using run_command_test = project_test;

struct failed_command : testing::Test {
    program kavetta = opened_design("n07_engine_oil_groove");
    scripted_user person;
    temporary_folder folder;

    failed_command() { kavetta.folder = folder.path(); }

    bool fail() {
        return run_command(kavetta, person, [&] {
            kavetta.entries.ecc = "9";
            kavetta.design_params.ecc = 9.0;
            kavetta.rotor_profiles.inner_x[0] = 9.0;
            kavetta.enabling.mnudxf = false;
            add_hint(kavetta.hints, "what to change");
            return checked_divide(1.0, 0.0) > 0.0;
        });
    }
};

TEST_F(failed_command, a_failure_ends_the_program_without_an_answer) {
    EXPECT_TRUE(fail());
    EXPECT_EQ(person.messages.size(), 1U);
    EXPECT_EQ(kavetta.entries.ecc, "9");
}

TEST_F(failed_command, going_on_brings_back_records_and_entries_as_before_the_command) {
    calculate_profiles(kavetta, person);
    kavetta.entries.numlobes = "5a";
    const program before = kavetta;
    person.going_on = {true};
    EXPECT_FALSE(fail());
    EXPECT_EQ(kavetta.entries, before.entries);
    EXPECT_EQ(kavetta.design_params.ecc, before.design_params.ecc);
    EXPECT_EQ(kavetta.rotor_profiles.inner_x, before.rotor_profiles.inner_x);
    EXPECT_EQ(kavetta.enabling, before.enabling);
    EXPECT_EQ(kavetta.hints, std::vector<hint>{{"what to change"}});
}

TEST_F(failed_command, the_recovery_project_is_written_and_kept_all_the_same) {
    person.going_on = {true};
    EXPECT_FALSE(fail());
    const std::string recovery = folder.file("recovery.KVT");
    EXPECT_EQ(person.messages, std::vector<std::string>{
                                   "Run-time error 11: Division by zero. Kavetta ends now. Your "
                                   "entries were saved to " +
                                   recovery + "\rHint: what to change"});
    EXPECT_TRUE(std::filesystem::exists(recovery));
    ASSERT_EQ(kavetta.unsaved->of_this_project.size(), 1U);
    EXPECT_EQ(kavetta.unsaved->of_this_project[0].path, recovery);
}

TEST_F(failed_command, a_command_without_a_failure_keeps_what_it_did) {
    EXPECT_FALSE(run_command(kavetta, person, [&] {
        kavetta.entries.ecc = "9";
        return false;
    }));
    EXPECT_TRUE(run_command(kavetta, person, [] { return true; }));
    EXPECT_EQ(kavetta.entries.ecc, "9");
}

TEST_F(failed_command, a_failed_step_of_the_view_brings_back_what_was_seen) {
    calculate_profiles(kavetta, person);
    const program before = kavetta;
    person.going_on = {true};
    const auto step = [&] {
        kavetta.entries.rotated_angle = "41";
        kavetta.view_state.rotation_angle += 0.5;
        kavetta.design_view.Line1.clear();
        checked_divide(1.0, 0.0);
    };
    EXPECT_FALSE(run_view_step(kavetta, person, step));
    EXPECT_EQ(kavetta.entries.rotated_angle, before.entries.rotated_angle);
    EXPECT_EQ(kavetta.view_state.rotation_angle, before.view_state.rotation_angle);
    EXPECT_EQ(kavetta.design_view.Line1.elements.size(), before.design_view.Line1.elements.size());
    EXPECT_TRUE(run_view_step(kavetta, person, step));
    EXPECT_EQ(kavetta.entries.rotated_angle, "41");
    EXPECT_FALSE(run_view_step(kavetta, person, [&] { kavetta.entries.rotated_angle = "7"; }));
    EXPECT_EQ(kavetta.entries.rotated_angle, "7");
}

TEST_F(run_command_test, saves_the_entries_tells_the_error_and_ends_the_program) {
    kavetta.entries.thick = "12,5";
    const bool ends = run_command(
        kavetta, person, []() -> bool { throw run_time_error(failure::division_by_zero); });
    EXPECT_TRUE(ends);
    EXPECT_EQ(line_of(folder.file("recovery.KVT"), 6), "12,5");
    ASSERT_EQ(person.messages.size(), 1U);
    EXPECT_NE(person.messages[0].find("11"), std::string::npos) << person.messages[0];
    EXPECT_NE(person.messages[0].find("Division by zero"), std::string::npos) << person.messages[0];
    EXPECT_NE(person.messages[0].find(folder.file("recovery.KVT")), std::string::npos)
        << person.messages[0];
}

TEST_F(run_command_test, says_so_when_even_the_recovery_project_cannot_be_written) {
    kavetta.folder = folder.path() / "gone";
    EXPECT_TRUE(run_command(kavetta, person,
                            []() -> bool { throw run_time_error(failure::type_mismatch); }));
    ASSERT_EQ(person.messages.size(), 1U);
    EXPECT_EQ(person.messages[0].find("recovery"), std::string::npos) << person.messages[0];
}

}  // namespace
}  // namespace kvt
