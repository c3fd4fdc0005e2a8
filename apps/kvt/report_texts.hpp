// report_texts: captions and numbers as the summaries write them.
#pragma once

#include "core/app_state.hpp"
#include "core/text_table.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// Four decimals at most; numbers that the fixed-point type can't hold keep all their digits.
std::string rounded(double value);

/// " mm" or " in".
std::string length_unit_text(const app_state& state);
/// A length in the unit of the design, rounded, with its unit.
std::string length_text(const app_state& state, double millimetres);

/// A caption of the text table; the name itself when there is none.
std::string caption_text(std::string_view form, std::string_view name, std::int16_t language);
/// The caption of a result with its unit, beside the unit of length of the design.
std::string unit_caption_text(std::string_view form, std::string_view name, const app_state& state);

}  // namespace kvt
