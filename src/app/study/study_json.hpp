// study_json: the rows of a study as JSON.
#pragma once

#include "app/study/study.hpp"

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace kvt {

/// Objects keep the order in which their fields are added.
using study_json = nlohmann::ordered_json;

/// {"design", "typed", "end", "ports", "performance", "values", "messages", "hints"}. A value that
/// a design does not have is null; doubles read back to the same value.
study_json json_of_row(const study& designs, const study_row& row);

/// The row of such an object; only whether it met the conditions is not in it: it did. Throws
/// study_problem for anything else.
study_row row_of_json(const study& designs, const study_json& object);

/// In one line, UTF-8; a byte that is not becomes the replacement character.
std::string text_of_json(const study_json& object);
/// Throws study_problem for a text that is no JSON.
study_json json_of_text(std::string_view text);

}  // namespace kvt
