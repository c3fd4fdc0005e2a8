// failure_text: what the user reads of a run-time failure.
#pragma once

#include "base/run_time_error.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace kvt {

/// The short text of a failure: "Division by zero", for language 2 "Division durch Null".
std::string_view failure_text(failure kind, std::int16_t language);

/// Why a file failed: "No space left on device" in the system's words, or "larger than 1 MB" in
/// ours; empty when nothing is known beyond the kind.
std::string reason_text(const run_time_error& error, std::int16_t language);

/// The failure with its reason: "Path/File access error (No space left on device)".
std::string failure_text(const run_time_error& error, std::int16_t language);

}  // namespace kvt
