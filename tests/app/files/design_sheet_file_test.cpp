// Tests of the Design Sheet entry: what must be there, questions, dialog, file, what is on it.
#include "app/files/design_sheet_file.hpp"

#include "app/stages/calculate_profiles.hpp"
#include "base/run_time_error.hpp"
#include "support/open_design.hpp"
#include "support/performed_design.hpp"
#include "support/temporary_folder.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

/// Keeps the texts of the pages that it was given.
class reading_writer : public sheet_writer {
  public:
    sheet_paper paper() const override {
        return {{210.0, 297.0}, [](std::string_view text, const sheet_font& font) {
                    return 0.17 * font.points * static_cast<double>(text.size());
                }};
    }
    std::string document(const std::vector<sheet_page>& pages, std::string_view title) override {
        if (fails) {
            throw run_time_error(failure::path_file_access);
        }
        titles.emplace_back(title);
        for (const sheet_page& page : pages) {
            for (const page_text& text : page.texts) {
                words.push_back(text.text);
            }
        }
        return "the document";
    }
    bool says(std::string_view text) const { return std::ranges::find(words, text) != words.end(); }

    bool fails = false;
    texts titles, words;
};

class design_sheet_file : public testing::Test {
  protected:
    void save() { save_design_sheet(kavetta, person, writer); }
    std::string path() const { return folder.file("sheet.pdf"); }

    program kavetta = performed_design("n07_engine_oil_groove");
    scripted_user person;
    reading_writer writer;
    temporary_folder folder;
};

TEST_F(design_sheet_file, needs_profiles) {
    kavetta = opened_design("n07_engine_oil_groove");
    save();
    EXPECT_EQ(person.messages,
              texts{"Calculate Profiles first: there are no profiles of this project yet."});
    EXPECT_TRUE(person.dialogs.empty());
}

TEST_F(design_sheet_file, proposes_the_name_of_the_project) {
    person.files = {std::nullopt};
    save();
    ASSERT_EQ(person.dialogs.size(), 1U);
    EXPECT_EQ(person.dialogs[0].title, "Kavetta V2021 - Save Design Sheet");
    EXPECT_EQ(person.dialogs[0].file_name, "n07_engine_oil_groove - Design Sheet");
    EXPECT_EQ(person.dialogs[0].default_extension, "pdf");
    EXPECT_EQ(person.dialogs[0].filter, "All files|*.*|PDF|*.pdf");
    EXPECT_EQ(person.dialogs[0].filter_index, 2);
    EXPECT_TRUE(writer.titles.empty()) << "cancelled: nothing follows";
    EXPECT_TRUE(person.statuses.empty());
}

TEST_F(design_sheet_file, writes_and_says_so) {
    person.files = {path()};
    save();
    EXPECT_EQ(read_file(path()), "the document");
    EXPECT_EQ(person.statuses, texts{"Written: " + path()});
    EXPECT_EQ(writer.titles, texts{"n07_engine_oil_groove - Design Sheet"});
    EXPECT_TRUE(person.questions.empty());
}

TEST_F(design_sheet_file, writes_in_german) {
    kavetta.app_state.language = GERMAN;
    person.files = {path()};
    save();
    EXPECT_EQ(person.dialogs[0].file_name, "n07_engine_oil_groove - Konstruktionsblatt");
    EXPECT_EQ(person.statuses, texts{"Geschrieben: " + path()});
    EXPECT_TRUE(writer.says("Meldungen der Berechnung"));
    EXPECT_TRUE(writer.says("Konstruiert"));
}

TEST_F(design_sheet_file, says_why_it_was_not_written) {
    writer.fails = true;
    person.files = {path()};
    save();
    EXPECT_FALSE(std::filesystem::exists(path()));
    ASSERT_EQ(person.statuses.size(), 1U);
    EXPECT_TRUE(person.statuses[0].starts_with("The file could not be saved: " + path()))
        << person.statuses[0];
}

TEST_F(design_sheet_file, asks_before_it_writes_results_of_older_entries) {
    kavetta.entries.speed_hi = "9000";
    person.answers = {answer::no};
    save();
    EXPECT_EQ(
        person.questions,
        texts{"The entries have changed since the last calculation. Write the calculated design?"});
    EXPECT_TRUE(person.dialogs.empty());
    person.answers = {answer::yes};
    person.files = {path()};
    save();
    EXPECT_TRUE(writer.says("The entries of the program have changed since this was calculated."));
    EXPECT_FALSE(writer.says("9000")) << "the sheet has the entries of its results";
}

TEST_F(design_sheet_file, keeps_the_unit_of_the_results) {
    kavetta.app_state.drawing_units = INCHES;
    person.answers = {answer::yes};
    person.files = {path()};
    save();
    EXPECT_TRUE(writer.says(kavetta.stage_entries.rotors->boxes.ecc + " mm"));
    EXPECT_FALSE(writer.says("in"));
}

TEST_F(design_sheet_file, leaves_out_the_results_of_another_project) {
    kavetta.stage_entries.perf_results.reset();
    kavetta.stage_entries.outlet.reset();
    kavetta.stage_entries.inlet.reset();
    person.files = {path()};
    save();
    EXPECT_TRUE(writer.says("There are no ports of this project yet."));
    EXPECT_TRUE(writer.says("There are no performance results of this project yet."));
}

TEST_F(design_sheet_file, has_the_messages_and_hints_of_the_run) {
    scripted_user told;
    kavetta = opened_design("n07_engine_oil_groove");
    kavetta.entries.outer_root = "1";
    calculate_profiles(kavetta, told);
    ASSERT_EQ(told.messages.size(), 1U) << "the run tells the smallest root radius";
    kavetta.entries.outer_root = "1";
    kavetta.stage_entries.rotors->boxes.outer_root = "1";
    person.files = {path()};
    save();
    EXPECT_TRUE(writer.says(told.messages.front())) << told.messages.front();
}

TEST_F(design_sheet_file, changes_nothing_of_the_program) {
    const entries before = kavetta.entries;
    const labels shown = kavetta.labels;
    const double flow = kavetta.perf_results.flow_max;
    person.files = {path()};
    save();
    EXPECT_EQ(kavetta.entries, before);
    EXPECT_EQ(kavetta.labels.capacity, shown.capacity);
    EXPECT_EQ(kavetta.perf_results.flow_max, flow);
}

}  // namespace
}  // namespace kvt
