#include "views/sight/sight.hpp"

#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "core/text_table.hpp"
#include "views/sight/chamber_sight.hpp"
#include "views/sight/drawn_dimensions.hpp"
#include "views/sight/sight_scale.hpp"
#include "views/zoom.hpp"

#include <algorithm>
#include <vector>

namespace kvt {

namespace {

std::string word(const sight_source& source, std::string_view name) {
    return std::string(form_text("viewpopupmenu", name, source.language));
}

template <typename range>
std::string joined(const range& words) {
    std::string line;
    for (const std::string& text : words) {
        line += (line.empty() ? "" : ", ") + text;
    }
    return line;
}

std::string grid_words(const sight_source& source) {
    return word(source, "grid") + number_text(grid_step(view_box(source.state), source.unit)) +
           " " + std::string(message_text(source.unit.short_name, source.language));
}

/// "chamber areas 2.1 mm², 8 mm², ...", each once, from the least to the largest.
std::string chamber_words(const sight_source& source) {
    std::vector<seen_chamber> chambers = chambers_at(source.design, source.state.rotation_angle);
    std::ranges::sort(chambers, {}, &seen_chamber::area_mm2);
    std::vector<std::string> areas;
    for (const seen_chamber& chamber : chambers) {
        areas.push_back(area_text(chamber.area_mm2, source.unit, source.language));
    }
    const auto repeated = std::unique(areas.begin(), areas.end());
    areas.erase(repeated, areas.end());
    return word(source, "areas") + joined(areas);
}

std::vector<std::string> ticked_words(const sight_source& source) {
    std::vector<std::string> words;
    if (source.ticks.dimensions) {
        words.push_back(word(source, "dimensions"));
    }
    if (source.ticks.grid) {
        words.push_back(grid_words(source));
    }
    if (source.ticks.contacts) {
        words.push_back(word(source, "contacts"));
    }
    if (source.ticks.chambers) {
        words.push_back(chamber_words(source));
    }
    return words;
}

void draw_ticked(const sight_source& source, const sight_metrics& metrics, sight_drawing& drawing) {
    const view_box box(source.state);
    const view_state& state = source.state;
    if (source.ticks.grid) {
        add_grid(box, source.unit, source.language, metrics, drawing);
    }
    if (source.ticks.dimensions) {
        add_dimensions(source.design, {state.rotation_angle, state.outer_rotation_angle},
                       source.unit, source.language, box, metrics, drawing);
    }
    if (source.ticks.chambers) {
        add_chambers(source.design, state.rotation_angle, source.unit, source.language, box,
                     metrics, drawing);
    }
    if (source.ticks.contacts) {
        add_contacts(source.design, state.rotation_angle, box, drawing);
    }
    if (source.ticks.measuring) {
        add_measurement(source.measured, source.unit, source.language, box, metrics, drawing);
    }
}

std::string ticked_text(const sight_source& source) {
    std::string text;
    if (const std::vector<std::string> words = ticked_words(source); !words.empty()) {
        text = word(source, "shown") + joined(words) + ".";
    }
    const measurement& measured = source.measured;
    if (source.ticks.measuring && measured.first && measured.second) {
        text += (text.empty() ? "" : " ") + word(source, "measured") +
                joined(measured_texts(*measured.first, *measured.second, source.unit,
                                      source.language)) +
                ".";
    }
    return text;
}

}  // namespace

sight_drawing draw_sight(const sight_source& source, const sight_metrics& metrics) {
    sight_drawing drawing;
    try {
        if (has_rotors(source.view)) {
            draw_ticked(source, metrics, drawing);
        }
    } catch (const run_time_error&) {
        drawing = {};
    }
    return drawing;
}

std::string sight_words(const sight_source& source) {
    try {
        return has_rotors(source.view) ? ticked_text(source) : std::string();
    } catch (const run_time_error&) {
        return {};
    }
}

}  // namespace kvt
