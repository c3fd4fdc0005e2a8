// The template of the conversion: version and project name.
// Source: docs/file-formats.md, "Model files of the simulation exchange".
#pragma once

#include "gtsuite/model_text.hpp"

#include <string_view>

namespace kvt {

/// The next but one line behind the one with the template's version becomes that of the year, and
/// the output of the chamber profile gets the project's name (UTF-8), ".txt" behind it. Throws
/// input_past_end when a line is missing.
void prepare_conversion(model_text& text, int year, std::string_view project_name);

}  // namespace kvt
