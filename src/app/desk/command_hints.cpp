#include "app/desk/command_hints.hpp"

#include "app/program.hpp"
#include "app/stages/performance_hint.hpp"

namespace kvt {

namespace {

void show_scrap_box(const program& kavetta, user& person) {
    std::string text;
    for (const hint& row : kavetta.hints) {
        if (row.weight == hint_weight::scraps_part) {
            text += (text.empty() ? "" : "\r") + row.text;
        }
    }
    if (!text.empty()) {
        person.show_message(text);
    }
}

}  // namespace

bool run_with_hints(program& kavetta, user& person, const std::function<bool()>& command) {
    kavetta.hints.clear();
    const bool ends = command();
    show_scrap_box(kavetta, person);
    return ends;
}

std::vector<hint> hints_on_display(const program& kavetta, performance_hint_memory& known) {
    std::vector<hint> hints = kavetta.hints;
    if (kavetta.enabling.calc_perf) {
        add_performance_hint(kavetta, known, hints);
    }
    return hints;
}

std::string hint_summary(const std::vector<hint>& hints, std::int16_t language) {
    if (hints.empty()) {
        return {};
    }
    const std::string line = hint_line(hints.front(), language);
    return hints.size() == 1 ? line : line + " (+" + std::to_string(hints.size() - 1) + ")";
}

}  // namespace kvt
