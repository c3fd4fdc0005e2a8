// The entities of one STEP body, written from rows of fixed text.
// Source: docs/file-formats.md, "STEP files (`.stp`)".
#pragma once

#include "base/text_file.hpp"

#include <span>
#include <string>
#include <string_view>

namespace kvt {

/// One entity of a template: "#", number, text is its line. Inside the text "#n" refers to entity n
/// of the same body and "{name}" stands for a value.
struct step_row {
    int number = 0;
    std::string_view text;
};

/// What "{name}" is replaced by.
struct step_value {
    std::string_view name;
    std::string text;
};

/// Appends rows to a text, every entity number raised by the offset of the body.
/// A text may hold a name only that `values` has.
void write_step_rows(text_lines& out, std::span<const step_row> rows,
                     std::span<const step_value> values, int offset);

/// Appends "#" and the number to the open line.
void write_reference(text_lines& out, int number);

}  // namespace kvt
