// duration_text: how long something takes, as its user reads it.
#pragma once

#include <string>

namespace kvt {

/// "12 s", "3 min 20 s", "2 h 5 min"
std::string duration_text(double seconds);

}  // namespace kvt
