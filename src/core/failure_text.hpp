// failure_text: what the user reads of a run-time failure.
#pragma once

#include "base/run_time_error.hpp"

#include <cstdint>
#include <string_view>

namespace kvt {

/// The short text of a failure: "Division by zero", for language 2 "Division durch Null".
std::string_view failure_text(failure kind, std::int16_t language);

}  // namespace kvt
