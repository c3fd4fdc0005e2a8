#include "views/sight/measurement.hpp"

#include "views/sight/sight_marks.hpp"
#include "views/sight/sight_scale.hpp"

namespace kvt {

namespace {

constexpr double RING = 6.0, DOT = 2.5;  ///< pixels
constexpr double TEXT_RIGHT = 52.0, TEXT_BELOW = 14.0;

void add_point(const point2& mm, const view_box& box, sight_drawing& drawing) {
    drawing.circles.push_back({box.of_pump(mm), DOT, true, sight_ink::measure});
}

void add_texts(const std::array<std::string, 3>& texts, const view_box& box, const point2& at,
               const sight_metrics& metrics, sight_drawing& drawing) {
    double y = at.y + TEXT_BELOW;
    // Above the end where there is no room below it.
    if (y + metrics.height * static_cast<double>(texts.size()) > box.side()) {
        y = at.y - TEXT_BELOW - metrics.height * static_cast<double>(texts.size());
    }
    for (const std::string& text : texts) {
        add_text({at.x + TEXT_RIGHT, y + metrics.height / 2.0}, text, sight_ink::measure, box,
                 metrics, drawing);
        y += metrics.height;
    }
}

void add_line(const point2& from_mm, const point2& to_mm, const view_box& box,
              sight_drawing& drawing) {
    const point2 from = box.of_pump(from_mm);
    const point2 to = box.of_pump(to_mm);
    const point2 corner{to.x, from.y};
    drawing.lines.push_back({from, corner, sight_ink::extension});
    drawing.lines.push_back({corner, to, sight_ink::extension});
    add_measured_line(from, to, sight_ink::measure, drawing);
}

}  // namespace

void measurement::set_point(const point2& mm) {
    if (first && !second) {
        second = mm;
    } else {
        first = mm;
        second.reset();
    }
}

std::optional<point2> measurement::far_end() const {
    if (!first) {
        return std::nullopt;
    }
    return second ? second : pointer;
}

std::array<std::string, 3> measured_texts(const point2& from, const point2& to,
                                          const length_unit& unit, std::int16_t language) {
    return {length_text(distance(from, to), unit, language),
            "dx " + length_text(to.x - from.x, unit, language),
            "dy " + length_text(to.y - from.y, unit, language)};
}

void add_measurement(const measurement& measured, const length_unit& unit, std::int16_t language,
                     const view_box& box, const sight_metrics& metrics, sight_drawing& drawing) {
    if (measured.pointer && measured.pointer_kind != snap_kind::free) {
        drawing.circles.push_back({box.of_pump(*measured.pointer), RING,
                                   measured.pointer_kind == snap_kind::centre, sight_ink::measure});
    }
    if (measured.first) {
        add_point(*measured.first, box, drawing);
    }
    if (const std::optional<point2> far = measured.far_end()) {
        add_point(*far, box, drawing);
        add_line(*measured.first, *far, box, drawing);
        add_texts(measured_texts(*measured.first, *far, unit, language), box, box.of_pump(*far),
                  metrics, drawing);
    }
}

}  // namespace kvt
