// The numbers and texts under which a run-time failure reaches the user.
#include "core/run_time_error.hpp"

#include <gtest/gtest.h>
#include <string>

namespace kvt {

namespace {

struct failure_case {
    failure kind;
    int number;
    const char* text;
    const char* german;
};

constexpr failure_case FAILURES[] = {
    {failure::invalid_procedure_call, 5, "Invalid procedure call or argument",
     "Ungültiger Prozeduraufruf oder ungültiges Argument"},
    {failure::overflow, 6, "Overflow", "Überlauf"},
    {failure::subscript_out_of_range, 9, "Subscript out of range", "Index außerhalb des gültigen Bereichs"},
    {failure::division_by_zero, 11, "Division by zero", "Division durch Null"},
    {failure::type_mismatch, 13, "Type mismatch", "Unverträglicher Typ"},
    {failure::file_not_found, 53, "File not found", "Datei nicht gefunden"},
    {failure::input_past_end, 62, "Input past end of file", "Einlesen hinter Dateiende"},
    {failure::path_file_access, 75, "Path/File access error", "Fehler beim Zugriff auf Pfad oder Datei"},
    {failure::path_not_found, 76, "Path not found", "Pfad nicht gefunden"},
    {failure::invalid_property_value, 380, "Invalid property value", "Ungültiger Eigenschaftswert"},
};

TEST(run_time_error, has_the_number_and_the_text_of_its_kind) {
    for (const failure_case& expected : FAILURES) {
        const run_time_error error(expected.kind, "for developers");
        EXPECT_EQ(error.kind(), expected.kind);
        EXPECT_EQ(error.number(), expected.number);
        EXPECT_EQ(error.text(1), expected.text);
        EXPECT_EQ(error.text(2), expected.german);
    }
}

TEST(run_time_error, tells_developers_the_detail_behind_the_text) {
    EXPECT_STREQ(run_time_error(failure::division_by_zero, "3 / 0").what(), "Division by zero: 3 / 0");
}

TEST(run_time_error, tells_the_text_alone_without_a_detail) {
    EXPECT_STREQ(run_time_error(failure::overflow).what(), "Overflow");
}

}  // namespace

}  // namespace kvt
