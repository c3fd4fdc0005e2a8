// Tests of the data files and the workbook of a performance: dialogs, questions, files, failures.
#include "app/files/performance_files.hpp"

#include "app/files/performance_fixture.hpp"
#include "app/stages/calculate_performance.hpp"
#include "automation/recorder_host.hpp"

#include <algorithm>

namespace kvt {
namespace {

const std::string NO_PERFORMANCE =
    "Calculate Performance first: there is no performance of this project yet.";
const std::string OLDER =
    "The entries have changed since the last calculation. Write the calculated design?";

TEST_F(performance_files, ask_for_five_names_in_order) {
    cancel_all();
    save_performance_files(kavetta, person);
    EXPECT_EQ(titles(), (texts{"Kavetta V2021 - Save Flow vs Pressure Data",
                               "Kavetta V2021 - Save Torque & Power Data",
                               "Kavetta V2021 - Save Lobe Contact & Stress Data",
                               "Kavetta V2021 - Save Efficiency Data",
                               "Kavetta V2021 - Save Volumetric Data"}));
    const texts endings = {" - Flow", " - Torque", " - Contact", " - Efficiency", " - Volumetric"};
    for (std::size_t i = 0; i < endings.size(); ++i) {
        const file_dialog& dialog = person.dialogs.at(i);
        EXPECT_TRUE(dialog.saving);
        EXPECT_EQ(dialog.filter, "All files|*.*|TXT|*.txt");
        EXPECT_EQ(dialog.filter_index, 2);
        EXPECT_EQ(dialog.default_extension, "txt");
        EXPECT_EQ(dialog.flags, OVERWRITE_PROMPT);
        EXPECT_EQ(dialog.file_name, "n07_engine_oil_groove" + endings[i]);
    }
    EXPECT_TRUE(person.statuses.empty()) << "nothing was written";
}

TEST_F(performance_files, ask_in_german) {
    kavetta.app_state.language = GERMAN;
    cancel_all();
    save_performance_files(kavetta, person);
    EXPECT_EQ(titles(), (texts{"Kavetta V2021 - Sparen Sie Ablauf gegen Druckdaten",
                               "Kavetta V2021 - Sparen Sie Drehmoment- & Kraftdaten",
                               "Kavetta V2021 - Sparen Sie Läppchenkontakt- & Spannungsdaten",
                               "Kavetta V2021 - Sparen Sie Wirkungsgraddaten",
                               "Kavetta V2021 - Sparen Sie Volumetrische Daten"}));
}

TEST_F(performance_files, skip_a_cancelled_dialog_alone) {
    kavetta.decimal_mark = ',';
    person.files = {folder.file("flow"), std::nullopt, "", std::nullopt, folder.file("vol")};
    save_performance_files(kavetta, person);
    EXPECT_EQ(files_there(), 2U);
    EXPECT_EQ(read_file(folder.file("flow")), file_bytes(kavetta, file_group::data, "perf_flow"));
    EXPECT_EQ(read_file(folder.file("vol")),
              file_bytes(kavetta, file_group::data, "perf_volumetric"));
    EXPECT_NE(read_file(folder.file("flow")).find("600;101300;2,61709"), std::string::npos)
        << "the decimal mark of the system";
    EXPECT_EQ(person.statuses,
              texts{"Written: " + folder.file("flow") + "; Written: " + folder.file("vol")});
}

TEST_F(performance_files, need_a_performance_of_the_open_project) {
    load_project(kavetta, person, std::string(KVT_TEST_DATA) + "/designs/n04_fuel.KVT");
    person.log.clear();
    save_performance_files(kavetta, person);
    export_excel(kavetta, person);
    EXPECT_EQ(person.log, (texts{"message " + NO_PERFORMANCE, "message " + NO_PERFORMANCE}));
    kavetta.app_state.language = GERMAN;
    save_performance_files(kavetta, person);
    EXPECT_EQ(person.messages.back(),
              "Berechnen Sie zuerst die Leistung: es gibt noch keine Leistung dieses Projekts.");
}

TEST_F(performance_files, need_one_that_ran_to_its_end) {
    kavetta.entries.speed_hi = "";
    EXPECT_FALSE(calculate_performance(kavetta, person));
    EXPECT_TRUE(kavetta.stage_entries.perf_results) << "refused: the earlier results stand";
    kavetta.entries = kavetta.stage_entries.perf_results->boxes;
    kavetta.port_params = {};
    EXPECT_ANY_THROW(calculate_performance(kavetta, person));
    EXPECT_FALSE(kavetta.stage_entries.perf_results);
}

TEST_F(performance_files, of_older_entries_ask_once_before_the_first_dialog) {
    kavetta.entries.speed_hi += "0";
    person.answers = {answer::no};
    save_performance_files(kavetta, person);
    EXPECT_EQ(person.log, texts{"ask " + OLDER});
    person.answers = {answer::yes};
    cancel_all();
    save_performance_files(kavetta, person);
    EXPECT_EQ(person.questions, (texts{OLDER, OLDER}));
    EXPECT_EQ(person.dialogs.size(), 5U);
    person.answers = {answer::no};
    export_excel(kavetta, person);
    EXPECT_EQ(person.questions.size(), 3U);
    EXPECT_EQ(person.dialogs.size(), 5U);
}

struct fill_excel_test : performance_files {
    automation::recorder_host excel;
};

TEST_F(fill_excel_test, fills_a_workbook_that_stays_open) {
    EXPECT_TRUE(fill_excel(kavetta, person, excel));
    EXPECT_EQ(person.log,
              (texts{"progress Writing... 0", "progress Writing... 20", "progress Writing... 40",
                     "progress Writing... 60", "progress Writing... 80", "progress Writing... 100",
                     "unload progressfrm"}));
    EXPECT_EQ(files_there(), 0U);
    EXPECT_GT(excel.calls().size(), 100U);
}

TEST_F(fill_excel_test, asks_for_no_file) {
    export_workbook(kavetta, person, &excel);
    EXPECT_TRUE(person.dialogs.empty());
    EXPECT_TRUE(person.questions.empty());
    EXPECT_EQ(person.log.back(), "unload progressfrm");
}

TEST_F(fill_excel_test, that_fails_offers_the_data_files) {
    excel.fail_call(2, 429);
    person.answers = {answer::yes};
    cancel_all();
    export_workbook(kavetta, person, &excel);
    EXPECT_EQ(person.questions, texts{NOT_POSSIBLE});
    EXPECT_EQ(person.dialogs.size(), 5U);
}

TEST_F(fill_excel_test, needs_a_performance_of_the_open_project) {
    kavetta.stage_entries.perf_results.reset();
    export_workbook(kavetta, person, &excel);
    EXPECT_EQ(person.log, texts{"message " + NO_PERFORMANCE});
    EXPECT_TRUE(excel.calls().empty());
}

TEST_F(fill_excel_test, that_fails_tells_the_number) {
    excel.fail_call(2, 429);
    EXPECT_FALSE(fill_excel(kavetta, person, excel));
    EXPECT_EQ(person.log.back(),
              "status The workbook was not filled, Excel answered error number 429");
    EXPECT_NE(std::ranges::find(person.log, "unload progressfrm"), person.log.end());
}

}  // namespace
}  // namespace kvt
