// Export to Excel where no program can be driven: the workbook is a file, the system opens it.
#include "app/files/performance_fixture.hpp"
#include "base/text_file.hpp"

#include <limits>

namespace kvt {
namespace {

using export_excel_test = performance_files;

TEST_F(export_excel_test, writes_the_workbook_and_opens_it) {
    const std::string path = folder.file("pump.xlsx");
    person.files = {path};
    export_excel(kavetta, person);
    EXPECT_EQ(person.log,
              (texts{"dialog Kavetta V2021 - Export to Excel", "progress Writing... 0",
                     "progress Writing... 20", "progress Writing... 40", "progress Writing... 60",
                     "progress Writing... 80", "progress Writing... 100", "unload progressfrm",
                     "status Written: " + path, "open " + path}));
    const file_dialog& dialog = person.dialogs[0];
    EXPECT_TRUE(dialog.saving);
    EXPECT_EQ(dialog.filter, "All files|*.*|XLSX|*.xlsx");
    EXPECT_EQ(dialog.filter_index, 2);
    EXPECT_EQ(dialog.default_extension, "xlsx");
    EXPECT_EQ(dialog.file_name, "n07_engine_oil_groove");
    EXPECT_EQ(files_there(), 1U);
    EXPECT_TRUE(read_file(path).starts_with("PK")) << "a ZIP archive";
}

TEST_F(export_excel_test, speaks_german) {
    kavetta.app_state.language = GERMAN;
    person.files = {folder.file("pump.xlsx")};
    export_excel(kavetta, person);
    EXPECT_EQ(person.log[0], "dialog Kavetta V2021 - Exportieren Excel");
    EXPECT_EQ(person.log[1], "progress Schreiben... 0");
    person.files = {folder.file("none/pump.xlsx")};
    person.answers = {answer::no};
    export_excel(kavetta, person);
    EXPECT_EQ(person.questions.back(),
              "Ein Fehler ist vorgekommen, es ist möglich, dass Excel auf diesem PC nicht "
              "installiert ist. Möchten Sie stattdessen eine Textdatei der Daten schaffen?");
}

TEST_F(export_excel_test, cancelled_writes_nothing_and_asks_nothing) {
    person.files = {std::nullopt};
    export_excel(kavetta, person);
    EXPECT_EQ(person.log, texts{"dialog Kavetta V2021 - Export to Excel"});
    EXPECT_EQ(files_there(), 0U);
}

TEST_F(export_excel_test, that_fails_ends_after_no) {
    person.files = {folder.file("none/pump.xlsx")};
    person.answers = {answer::no};
    export_excel(kavetta, person);
    const texts end(person.log.end() - 3, person.log.end());
    EXPECT_EQ(end, (texts{"unload progressfrm",
                          "status The file could not be saved: " + folder.file("none/pump.xlsx") +
                              ": Path not found",
                          "ask " + NOT_POSSIBLE}));
    EXPECT_EQ(person.dialogs.size(), 1U);
}

TEST_F(export_excel_test, that_fails_writes_the_data_files_after_yes) {
    person.files = {folder.file("none/pump.xlsx"),
                    folder.file("flow"),
                    std::nullopt,
                    std::nullopt,
                    std::nullopt,
                    std::nullopt};
    person.answers = {answer::yes};
    export_excel(kavetta, person);
    EXPECT_EQ(person.dialogs.size(), 6U);
    EXPECT_EQ(person.statuses.back(), "Written: " + folder.file("flow"));
    EXPECT_EQ(files_there(), 1U);
}

TEST_F(export_excel_test, that_fails_leaves_an_old_file_alone) {
    write_file(folder.file("pump.xlsx"), "old");
    kavetta.perf_results.ripple_percent = std::numeric_limits<double>::quiet_NaN();
    person.files = {folder.file("pump.xlsx")};
    person.answers = {answer::no};
    export_excel(kavetta, person);
    EXPECT_EQ(read_file(folder.file("pump.xlsx")), "old");
    EXPECT_EQ(person.questions, texts{NOT_POSSIBLE});
}

}  // namespace
}  // namespace kvt
