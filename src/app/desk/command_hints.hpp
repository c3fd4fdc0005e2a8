// command_hints: what the desk does with the hints of a command: which ones stand in the status bar
// now, and which one also comes as a box.
#pragma once

#include "core/hints.hpp"
#include "core/user.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kvt {

class performance_hint_memory;
struct program;

/// Runs a command that begins without hints. Those that say that a written part would be scrap come
/// as one box behind it, in their order. Answers what the command answered.
bool run_with_hints(program& kavetta, user& person, const std::function<bool()>& command);

/// The hints that stand in the status bar now: those of the last command, and, while Calculate
/// Performance can be pressed, what would make it fail; `known` keeps that while the records stay
/// the same.
std::vector<hint> hints_on_display(const program& kavetta, performance_hint_memory& known);

/// The one line of the status bar: the first hint, and how many stand behind it: "Hint: ... (+2)";
/// empty without hints.
std::string hint_summary(const std::vector<hint>& hints, std::int16_t language);

}  // namespace kvt
