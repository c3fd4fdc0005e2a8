#include "core/hints.hpp"

#include "core/text_table.hpp"

#include <algorithm>

namespace kvt {

void add_hint(std::vector<hint>& hints, const std::string& text, hint_weight weight) {
    const auto known = std::ranges::find(hints, text, &hint::text);
    if (known == hints.end()) {
        hints.push_back({text, weight});
    } else if (weight == hint_weight::scraps_part) {
        known->weight = weight;
    }
}

std::string hint_line(const hint& row, std::int16_t language) {
    return std::string(message_text(message::hint_label, language)) + row.text;
}

}  // namespace kvt
