// report_texts: captions and numbers as the summaries write them.
#pragma once

#include "core/text_table.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// Four decimals at most; numbers that the fixed-point type can't hold keep all their digits.
std::string rounded(double value);

/// A caption of the text table; the name itself when there is none.
std::string caption_text(std::string_view form, std::string_view name, std::int16_t language);
/// The caption of a result with its unit, for the millimetre or the inch world.
std::string unit_caption_text(std::string_view form, std::string_view name, bool inches, std::int16_t language);

}  // namespace kvt
