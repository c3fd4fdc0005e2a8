// The log of recorded calls, one line a call.
// Source: docs/file-formats.md, "Automation log".
#pragma once

#include "automation/recorder_host.hpp"

#include <string>
#include <vector>

namespace kvt::automation {

/// The line of one call, without its end, arrays as long as asked for.
std::string line_of(const recorded_call& call, log_length length);

/// The lines of all calls, each with "\n". Shortened as recorder_host::log says.
std::string log_of(const std::vector<recorded_call>& calls, log_length length);

}  // namespace kvt::automation
