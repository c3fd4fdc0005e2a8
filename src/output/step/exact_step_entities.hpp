// The entities of an exact STEP file, numbered as they are written, so that each one refers to
// earlier ones only.
// Source: docs/file-formats.md, "Exact STEP files (`.stp`)".
#pragma once

#include "base/text_file.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

class exact_step_entities {
  public:
    explicit exact_step_entities(text_lines& out) : out_(out) {}

    /// Writes "#n=ENTITY;", n one more than before, and answers n.
    int add(std::string_view entity);

  private:
    text_lines& out_;
    int last_ = 0;
};

/// "#12"
std::string step_ref(int number);
/// "(#1,#5,#7)"
std::string step_refs(const std::vector<int>& numbers);
/// Up to 15 digits with a decimal point and no exponent: "25.", "0.5", "-12.25".
std::string step_real(double value);
/// A UTF-8 text between apostrophes, in ASCII: apostrophes and backslashes doubled, every other
/// letter outside ASCII as \X2\00E4\X0\, beyond four digits as \X4\0001F600\X0\, control
/// characters left out.
std::string step_string(std::string_view utf8);

}  // namespace kvt
