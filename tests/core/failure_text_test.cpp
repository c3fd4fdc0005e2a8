// The texts under which a run-time failure reaches the user.
#include "core/failure_text.hpp"

#include <cerrno>
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
    {failure::out_of_memory, "Out of memory", "Nicht genügend Speicher"},
    {failure::subscript_out_of_range, "Subscript out of range",
     "Index außerhalb des gültigen Bereichs"},
    {failure::division_by_zero, "Division by zero", "Division durch Null"},
    {failure::type_mismatch, "Type mismatch", "Unverträglicher Typ"},
    {failure::bad_file_name, "Bad file name", "Unzulässiger Dateiname"},
    {failure::no_connection, "Unable to connect to the server", "Keine Verbindung zum Server"},
    {failure::request_failed, "The server did not deliver the file",
     "Der Server hat die Datei nicht geliefert"},
    {failure::request_timed_out, "The server did not answer in time",
     "Der Server hat nicht rechtzeitig geantwortet"},
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

TEST(failure_text, of_a_file_names_the_reason_when_it_is_known) {
    const auto text = [](file_fault fault, std::int16_t language) {
        return failure_text(run_time_error(failure::path_file_access, "a.KVT", fault), language);
    };
    EXPECT_EQ(text({}, 1), "Path/File access error");
    EXPECT_EQ(text({file_fault::reason::system, ENOSPC}, 1),
              "Path/File access error (No space left on device)");
    EXPECT_EQ(text({file_fault::reason::too_large}, 1),
              "Path/File access error (larger than 1 MB, so it is no file of this program)");
    EXPECT_EQ(text({file_fault::reason::not_plain}, 2),
              "Fehler beim Zugriff auf Pfad oder Datei (ein Gerät oder eine Pipe, keine Datei)");
}

}  // namespace

}  // namespace kvt
