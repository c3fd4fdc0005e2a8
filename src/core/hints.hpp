// hints: what the program itself notices during a command, beside the messages that it tells. A
// hint is never a box that waits for an answer: the desk shows it in the status bar, the batch
// program prints it behind the messages.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kvt {

/// How much a hint weighs on the desk.
enum class hint_weight {
    line,        ///< a line in the status bar
    scraps_part  ///< what was written would scrap the part: also a box, once after the command
};

struct hint {
    std::string text;  ///< one sentence in the language in force, without the word "Hint"
    hint_weight weight = hint_weight::line;

    friend bool operator==(const hint&, const hint&) = default;
};

/// Adds a hint; one that stands there already is not repeated, the heavier weight stays.
void add_hint(std::vector<hint>& hints, const std::string& text,
              hint_weight weight = hint_weight::line);

/// "Hint: " and the text, "Hinweis: " for language 2.
std::string hint_line(const hint& row, std::int16_t language);

}  // namespace kvt
