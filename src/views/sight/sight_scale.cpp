#include "views/sight/sight_scale.hpp"

#include "base/number_text.hpp"
#include "views/charts/axis_marks.hpp"
#include "views/sight/sight_marks.hpp"

#include <array>
#include <cmath>

namespace kvt {

namespace {

constexpr std::array STEPS = {1.0, 2.0, 5.0, 10.0};
/// A value that differs from a step by rounding alone is that step.
constexpr double ROUNDING = 1.0 + 1e-9;

constexpr double BAR_MARGIN = 10.0, BAR_END = 4.0;  ///< pixels
constexpr double BAR_SHARE = 0.25;                  ///< of the side of the box, at most
constexpr int MORE_DECIMALS = 1;

double power_of_ten_below(double value) {
    return std::pow(10.0, std::floor(std::log10(value * ROUNDING)));
}

/// Lines across the box where one coordinate of the pump is a multiple of the step, mm.
void add_grid_lines(const view_box& box, double step_mm, sight_drawing& drawing) {
    const point2 upper_left = *box.on_pump({0.0, 0.0});
    const point2 lower_right = *box.on_pump({box.side(), box.side()});
    const auto ink = [](double k) { return k == 0.0 ? sight_ink::grid_axis : sight_ink::grid; };
    for (double k = std::ceil(upper_left.x / step_mm); k * step_mm <= lower_right.x; k += 1.0) {
        const double x = box.of_pump({k * step_mm, 0.0}).x;
        drawing.grid.push_back({{x, 0.0}, {x, box.side()}, ink(k)});
    }
    for (double k = std::ceil(lower_right.y / step_mm); k * step_mm <= upper_left.y; k += 1.0) {
        const double y = box.of_pump({0.0, k * step_mm}).y;
        drawing.grid.push_back({{0.0, y}, {box.side(), y}, ink(k)});
    }
}

void add_scale_bar(const view_box& box, double length_mm, const std::string& text,
                   const sight_metrics& metrics, sight_drawing& drawing) {
    const double right = box.side() - BAR_MARGIN;
    const double left = right - box.pixels_of_mm(length_mm);
    const double y = box.side() - BAR_MARGIN;
    drawing.lines.push_back({{left, y}, {right, y}, sight_ink::scale_bar});
    for (const double x : {left, right}) {
        drawing.lines.push_back({{x, y - BAR_END}, {x, y + BAR_END}, sight_ink::scale_bar});
    }
    add_text({(left + right) / 2.0, y - BAR_END - metrics.height / 2.0}, text, sight_ink::scale_bar,
             box, metrics, drawing);
}

}  // namespace

double step_from(double least) {
    const double power = power_of_ten_below(least);
    for (const double step : STEPS) {
        if (step * power * ROUNDING >= least) {
            return step * power;
        }
    }
    return STEPS.back() * power;
}

double step_up_to(double largest) {
    const double power = power_of_ten_below(largest);
    double found = power;
    for (const double step : STEPS) {
        if (step * power <= largest * ROUNDING) {
            found = step * power;
        }
    }
    return found;
}

double grid_step(const view_box& box, const length_unit& unit) {
    const double pixels_a_unit = box.pixels_of_mm(unit.to_mm(1.0));
    return pixels_a_unit > 0.0 ? step_from(SMALLEST_GRID_STEP / pixels_a_unit) : 0.0;
}

std::string length_text(double mm, const length_unit& unit, std::int16_t language) {
    return rounded_text(unit.from_mm(mm), unit.cursor_decimals + MORE_DECIMALS) + " " +
           std::string(message_text(unit.short_name, language));
}

void add_grid(const view_box& box, const length_unit& unit, std::int16_t language,
              const sight_metrics& metrics, sight_drawing& drawing) {
    const double step = grid_step(box, unit);
    if (!(step > 0.0) || !(box.side() > 0.0)) {
        return;
    }
    add_grid_lines(box, unit.to_mm(step), drawing);
    const double pixels_a_unit = box.pixels_of_mm(unit.to_mm(1.0));
    const double bar = step_up_to(box.side() * BAR_SHARE / pixels_a_unit);
    add_scale_bar(box, unit.to_mm(bar),
                  number_text(bar) + " " + std::string(message_text(unit.short_name, language)),
                  metrics, drawing);
}

}  // namespace kvt
