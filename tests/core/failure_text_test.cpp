// The texts under which a run-time failure reaches the user.
#include "core/failure_text.hpp"

#include <gtest/gtest.h>
#include <string>

namespace kvt {

namespace {

struct failure_case {
    failure kind;
    const char* text;
    const char* german;
};

constexpr failure_case FAILURES[] = {
    {failure::invalid_procedure_call, "Invalid procedure call or argument",
     "Ungültiger Prozeduraufruf oder ungültiges Argument"},
    {failure::overflow, "Overflow", "Überlauf"},
    {failure::subscript_out_of_range, "Subscript out of range",
     "Index außerhalb des gültigen Bereichs"},
    {failure::division_by_zero, "Division by zero", "Division durch Null"},
    {failure::type_mismatch, "Type mismatch", "Unverträglicher Typ"},
    {failure::file_not_found, "File not found", "Datei nicht gefunden"},
    {failure::input_past_end, "Input past end of file", "Einlesen hinter Dateiende"},
    {failure::path_file_access, "Path/File access error",
     "Fehler beim Zugriff auf Pfad oder Datei"},
    {failure::path_not_found, "Path not found", "Pfad nicht gefunden"},
    {failure::invalid_property_value, "Invalid property value", "Ungültiger Eigenschaftswert"},
};

TEST(failure_text, names_every_kind_in_both_languages) {
    for (const failure_case& expected : FAILURES) {
        EXPECT_EQ(failure_text(expected.kind, 1), expected.text);
        EXPECT_EQ(failure_text(expected.kind, 2), expected.german);
    }
}

}  // namespace

}  // namespace kvt
