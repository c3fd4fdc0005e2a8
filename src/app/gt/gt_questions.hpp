// What is asked and told when a conversion has failed.
#pragma once

#include <cstdint>

namespace kvt {

class user;

/// The questions that lead to the cause, in their order. Without the package on this PC GT_form
/// opens.
void ask_why_conversion_failed(user& person, std::int16_t language);

}  // namespace kvt
