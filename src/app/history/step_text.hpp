// step_text: what a step of the history is called.
#pragma once

#include "app/history/edit_history.hpp"

#include <cstddef>
#include <string>

namespace kvt {

struct program;

/// "Eccentricity 2.6 → 2.8", "Shadow Ports on", "Clear Design", "Project 'engine_oil'", "Units
/// mm → inches", in the language in force. Step 0 is "Start".
std::string step_text(const program& kavetta, const edit_history& history, std::size_t step);

}  // namespace kvt
