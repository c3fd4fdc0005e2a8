#include "app/trial/figures.hpp"

#include "base/decimal_mark.hpp"
#include "base/fixed_number.hpp"
#include "base/number_text.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace kvt {

namespace {

constexpr std::array FIGURES = {
    figure{"Form1", "capacity", &labels::capacity},
    figure{"Form1", "area_ratio", &labels::area_ratio},
    figure{"Form1", "max_chamb_vol", &labels::max_chamb_vol},
    figure{"Form1", "min_chamb_vol", &labels::min_chamb_vol},
    figure{"perf_res", "max_speed", &labels::max_speed},
    figure{"perf_res", "max_shaft_side_load", &labels::max_shaft_side_load},
    figure{"perf_res", "side_load_direction", &labels::side_load_direction, true},
    figure{"perf_res", "max_cutter_inner", &labels::max_cutter_inner},
    figure{"perf_res", "Label1", &labels::Label1},
};

constexpr const char* ARROW = "→ ";
constexpr int CHANGE_DECIMALS = 1;

constexpr std::string_view DIGITS = "0123456789";
constexpr std::string_view NUMBER_SIGNS = "0123456789.-";

/// The first number in a text, without what stands before it and its unit.
std::string number_in(const std::string& text) {
    std::size_t first = text.find_first_of(DIGITS);
    if (first == std::string::npos) {
        return {};
    }
    while (first > 0 && (text[first - 1] == '-' || text[first - 1] == '.')) {
        --first;
    }
    return text.substr(first, text.find_first_not_of(NUMBER_SIGNS, first) - first);
}

/// ", +4.5 %"
std::string change_text(double present, double other) {
    const std::string percent =
        fixed_number(100.0 * (other - present) / std::abs(present), CHANGE_DECIMALS);
    return std::string(", ") + (other > present ? "+" : "") + percent + " %";
}

}  // namespace

std::span<const figure> figures() {
    return FIGURES;
}

const figure* find_figure(std::string_view form, std::string_view control) {
    const auto* found = std::ranges::find_if(
        FIGURES, [&](const figure& row) { return row.form == form && row.control == control; });
    return found == FIGURES.end() ? nullptr : found;
}

std::string figure_text(const figure& row, const labels& texts, char decimal_mark) {
    return with_decimal_mark(number_in(texts.*row.text), decimal_mark);
}

std::string changed_figure_text(const figure& row, const labels& present, const labels& other,
                                char decimal_mark) {
    const std::string shown = number_in(other.*row.text);
    if (shown.empty()) {
        return {};
    }
    const double before = val(number_in(present.*row.text));
    const std::string change =
        row.is_angle || before == 0.0 ? std::string() : change_text(before, val(shown));
    return ARROW + with_decimal_mark(shown, decimal_mark) + with_decimal_mark(change, decimal_mark);
}

}  // namespace kvt
