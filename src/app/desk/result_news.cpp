#include "app/desk/result_news.hpp"

#include "app/program.hpp"
#include "views/design_view_text.hpp"
#include "views/zoom.hpp"

#include <span>
#include <string_view>
#include <utility>

namespace kvt {

namespace {

/// A result, and the caption beside it; a sentence has none.
struct captioned_label {
    std::string_view caption;
    std::string labels::*result;
    std::string labels::*unit = nullptr;
};

constexpr captioned_label OF_PROFILES[] = {
    {"Label11", &labels::capacity, &labels::units_label},
    {"Label17", &labels::area_ratio},
    {"Label18", &labels::max_chamb_vol},
    {"Label19", &labels::min_chamb_vol},
};
constexpr captioned_label OF_PERFORMANCE[] = {
    {"max_speed_label", &labels::max_speed},
    {"", &labels::Label5},
    {"max_shaft_side_load_label", &labels::max_shaft_side_load},
    {"side_load_direction_label", &labels::side_load_direction},
    {"max_cutter_inner_label", &labels::max_cutter_inner},
    {"", &labels::Label1},
};

std::string line_of(const program& kavetta, std::string_view form,
                    std::span<const captioned_label> results) {
    std::string line;
    for (const captioned_label& each : results) {
        line += line.empty() ? "" : ", ";
        if (!each.caption.empty()) {
            line += std::string(kavetta.captions.of(form, each.caption)) + ": ";
        }
        line += kavetta.labels.*each.result;
        line += each.unit == nullptr ? "" : " " + kavetta.labels.*each.unit;
    }
    return line + ".";
}

}  // namespace

std::array<std::string, 3> result_lines(const program& kavetta) {
    std::array<std::string, 3> lines;
    if (has_rotors(kavetta.design_view)) {
        lines[0] = line_of(kavetta, "Form1", OF_PROFILES);
        lines[1] = drawn_ports_text(kavetta.design_view, kavetta.app_state.language);
    }
    if (kavetta.results_shown) {
        lines[2] = line_of(kavetta, "perf_res", OF_PERFORMANCE);
    }
    return lines;
}

std::string result_news::take(const program& kavetta) {
    const std::array<std::string, 3> lines = result_lines(kavetta);
    const std::int16_t language = kavetta.app_state.language;
    std::string news;
    if (std::exchange(language_, language) == language) {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (lines.at(i) != said_.at(i) && !lines.at(i).empty()) {
                news += (news.empty() ? "" : " ") + lines.at(i);
            }
        }
    }
    said_ = lines;
    return news;
}

}  // namespace kvt
