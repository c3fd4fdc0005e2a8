#include "views/sight/chamber_sight.hpp"

#include "base/run_time_error.hpp"
#include "exact/chamber.hpp"
#include "views/charts/axis_marks.hpp"
#include "views/sight/sight_marks.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

namespace kvt {

namespace {

constexpr double RADIANS_PER_DEGREE = std::numbers::pi / 180.0;
constexpr double SAGITTA = 0.02;     ///< mm; below a pixel where a rotor fills the view
constexpr double CONTACT_DOT = 3.5;  ///< pixels

double place_of(const exact_pair& pair, int chamber, double rotation_angle) {
    const double life = chamber_life(pair);
    const double pitch = life / pair.lobes;
    const double place = rotation_angle * RADIANS_PER_DEGREE + (0.5 + chamber) * pitch;
    const double rest = std::fmod(place, life);
    return rest < 0.0 ? rest + life : rest;
}

/// The mean of the outline: of a bent chamber it can lie in a rotor.
point2 middle_of(const std::vector<point2>& points) {
    point2 sum;
    for (const point2& point : points) {
        sum = {sum.x + point.x, sum.y + point.y};
    }
    const auto count = static_cast<double>(points.size());
    return {sum.x / count, sum.y / count};
}

void add_area_text(const point2& middle, const std::string& text, const view_box& box,
                   const sight_metrics& metrics, sight_drawing& drawing) {
    const std::optional<sight_text> placed =
        text_round(middle, text, sight_ink::chamber, box, metrics);
    if (placed && std::ranges::none_of(drawing.texts, [&](const sight_text& other) {
            return overlap(*placed, other);
        })) {
        drawing.texts.push_back(*placed);
    }
}

}  // namespace

std::vector<seen_chamber> chambers_at(const design_params& design, double rotation_angle) {
    std::vector<seen_chamber> seen;
    try {
        const exact_pair pair = nominal_pair(design);
        const lobe_outline outline = outline_of_lobe(design);
        for (int chamber = 0; chamber < pair.lobes; ++chamber) {
            const double place = place_of(pair, chamber, rotation_angle);
            seen.push_back({place, chamber_area(pair, outline, place)});
        }
    } catch (const run_time_error&) {
        seen.clear();
    }
    return seen;
}

std::string area_text(double mm2, const length_unit& unit, std::int16_t language) {
    return rounded_text(unit.from_mm(unit.from_mm(mm2)), unit.cursor_decimals) + " " +
           std::string(message_text(unit.short_name, language)) + "²";
}

void add_chambers(const design_params& design, double rotation_angle, const length_unit& unit,
                  std::int16_t language, const view_box& box, const sight_metrics& metrics,
                  sight_drawing& drawing) {
    const std::vector<seen_chamber> seen = chambers_at(design, rotation_angle);
    if (seen.empty()) {
        return;
    }
    const exact_pair pair = nominal_pair(design);
    const lobe_outline lobe = outline_of_lobe(design);
    for (const seen_chamber& chamber : seen) {
        std::vector<point2> outline;
        for (const point2& point : chamber_polygon(pair, lobe, chamber.place, SAGITTA)) {
            outline.push_back(box.of_pump(point));
        }
        if (outline.empty()) {
            continue;
        }
        add_area_text(middle_of(outline), area_text(chamber.area_mm2, unit, language), box, metrics,
                      drawing);
        drawing.areas.push_back(std::move(outline));
    }
}

void add_contacts(const design_params& design, double rotation_angle, const view_box& box,
                  sight_drawing& drawing) {
    const std::vector<seen_chamber> seen = chambers_at(design, rotation_angle);
    if (seen.empty()) {
        return;
    }
    const exact_pair pair = nominal_pair(design);
    for (const seen_chamber& chamber : seen) {
        const lobe_contact contact =
            contact_of_lobe(pair, lobes_of_chamber(pair, chamber.place).first);
        drawing.circles.push_back(
            {box.of_pump(contact.place), CONTACT_DOT, true, sight_ink::contact});
    }
}

}  // namespace kvt
