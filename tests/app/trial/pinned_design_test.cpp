// pinned_design: a design stands apart from the present one until it is unpinned.
#include "app/trial/pinned_design.hpp"

#include "app/files/project_entries.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "support/performed_design.hpp"
#include "support/temporary_folder.hpp"

#include <fstream>
#include <gtest/gtest.h>

namespace kvt {

namespace {

constexpr const char* DESIGN = "n07_engine_oil_groove";
constexpr const char* OTHER = "n07_inch_hydraulic";

std::string design_path(const std::string& name) {
    return std::string(KVT_TEST_DATA) + "/designs/" + name + ".KVT";
}

std::string project_text(const program& kavetta) {
    return write_project(project_record_of(kavetta, kavetta.app_state.project_path));
}

/// Pins a project file, which stands in a folder of its own with some of its entries changed.
class pin_project_file_test : public testing::Test {
  protected:
    void pin_file(const std::string& path) {
        person_.files.emplace_back(path);
        pin_project_file(kavetta_, person_);
    }
    std::string changed_project(std::string entries::*box, const std::string& text) {
        program changed = opened_design(DESIGN);
        changed.entries.*box = text;
        std::string path = folder_.file("changed.KVT");
        std::ofstream(path, std::ios::binary) << write_project(project_record_of(changed, path));
        return path;
    }

    temporary_folder folder_;
    program kavetta_ = performed_design(DESIGN);
    scripted_user person_;
};

}  // namespace

TEST(pin_design, keeps_what_is_calculated_through_every_change) {
    program kavetta = performed_design(DESIGN);
    scripted_user person;
    EXPECT_EQ(pinned_text(kavetta), "");
    pin_design(kavetta, person);
    EXPECT_EQ(person.statuses.back(), "Pinned: " + kavetta.app_state.project_name);
    ASSERT_NE(kavetta.pinned, nullptr);
    const std::string capacity = kavetta.labels.capacity;
    const std::string speed = kavetta.labels.max_speed;
    kavetta.entries.ecc = "2.7";
    calculate_profiles(kavetta, person);
    EXPECT_NE(kavetta.labels.capacity, capacity);
    load_project(kavetta, person, design_path(OTHER));
    ASSERT_NE(kavetta.pinned, nullptr);
    const labels pinned = labels_of(kavetta.pinned->design, kavetta.app_state);
    EXPECT_EQ(pinned.max_speed, speed);
    EXPECT_TRUE(kavetta.pinned->design.outlines.inlet);
}

TEST(pin_design, takes_the_place_of_what_was_pinned) {
    program kavetta = performed_design(DESIGN);
    scripted_user person;
    pin_design(kavetta, person);
    const auto first = kavetta.pinned;
    kavetta.app_state.project_name = "second";
    pin_design(kavetta, person);
    EXPECT_NE(kavetta.pinned, first);
    EXPECT_EQ(kavetta.pinned->name, "second");
    kavetta.app_state.language = GERMAN;
    EXPECT_EQ(pinned_text(kavetta), "Angeheftet: second");
    unpin_design(kavetta, person);
    EXPECT_EQ(kavetta.pinned, nullptr);
}

TEST(pin_design, pins_nothing_without_rotors) {
    program kavetta = opened_design(DESIGN);
    scripted_user person;
    EXPECT_FALSE(can_pin_design(kavetta));
    pin_design(kavetta, person);
    EXPECT_EQ(kavetta.pinned, nullptr);
    EXPECT_TRUE(person.log.empty());
}

TEST_F(pin_project_file_test, calculates_the_project_apart) {
    program expected = performed_design(OTHER);
    const std::string before = project_text(kavetta_);
    const std::string capacity = kavetta_.labels.capacity;
    pin_file(design_path(OTHER));
    ASSERT_NE(kavetta_.pinned, nullptr);
    EXPECT_EQ(kavetta_.pinned->name, expected.app_state.project_name);
    EXPECT_EQ(kavetta_.pinned->design.rotor_profiles.capacity.text(),
              expected.rotor_profiles.capacity.text());
    EXPECT_EQ(kavetta_.pinned->design.perf_results.flow_m3s, expected.perf_results.flow_m3s);
    EXPECT_TRUE(kavetta_.pinned->design.has_performance);
    EXPECT_EQ(project_text(kavetta_), before);
    EXPECT_EQ(kavetta_.labels.capacity, capacity);
    EXPECT_EQ(person_.dialogs.back().title.substr(person_.dialogs.back().title.find(" - ")),
              " - Pin Project File");
    EXPECT_TRUE(person_.messages.empty());
}

TEST_F(pin_project_file_test, leaves_what_is_pinned_when_no_file_is_chosen) {
    pin_design(kavetta_, person_);
    const auto pinned = kavetta_.pinned;
    person_.files = {std::nullopt, ""};
    pin_project_file(kavetta_, person_);
    pin_project_file(kavetta_, person_);
    EXPECT_EQ(kavetta_.pinned, pinned);
}

TEST_F(pin_project_file_test, tells_in_the_status_bar_of_a_file_that_can_not_be_read) {
    pin_design(kavetta_, person_);
    const auto pinned = kavetta_.pinned;
    pin_file(folder_.file("missing.KVT"));
    EXPECT_TRUE(person_.statuses.back().starts_with("The file could not be opened: "));
    EXPECT_EQ(kavetta_.pinned, pinned);
}

TEST_F(pin_project_file_test, says_why_rotors_are_refused) {
    pin_file(changed_project(&entries::ecc, "3.4"));
    EXPECT_EQ(kavetta_.pinned, nullptr);
    ASSERT_EQ(person_.messages.size(), 1U);
    const std::string head = "The project can't be calculated, so it was not pinned.\n";
    EXPECT_TRUE(person_.messages.front().starts_with(head));
    EXPECT_GT(person_.messages.front().size(), head.size());
}

TEST_F(pin_project_file_test, of_refused_ports_has_the_rotors) {
    pin_file(changed_project(&entries::groove_length, "0"));
    ASSERT_NE(kavetta_.pinned, nullptr);
    EXPECT_TRUE(kavetta_.pinned->design.outlines.rotors);
    EXPECT_FALSE(kavetta_.pinned->design.outlines.inlet);
    EXPECT_FALSE(kavetta_.pinned->design.has_performance);
}

}  // namespace kvt
