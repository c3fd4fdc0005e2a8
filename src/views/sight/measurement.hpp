// measurement: the line between two points that is measured in the Design view.
#pragma once

#include "core/length_unit.hpp"
#include "views/sight/sight_drawing.hpp"
#include "views/sight/snap.hpp"
#include "views/sight/view_box.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace kvt {

/// Millimetres of the pump, about the inner rotor axis, y up.
struct measurement {
    std::optional<point2> first, second;
    std::optional<point2> pointer;  ///< where the mouse is, snapped
    snap_kind pointer_kind = snap_kind::free;

    /// The next end: the first one, then the second; a third begins anew.
    void set_point(const point2& mm);
    /// The other end of the line, while the first stands: the second or the pointer.
    std::optional<point2> far_end() const;
};

/// "7.071 mm", "dx 5 mm", "dy -5 mm"; dx to the right and dy up, from the first point.
std::array<std::string, 3> measured_texts(const point2& from, const point2& to,
                                          const length_unit& unit, std::int16_t language);

/// The line with an arrow at each end, dx and dy as thin lines, the texts beside its far end; a
/// ring where the pointer has snapped.
void add_measurement(const measurement& measured, const length_unit& unit, std::int16_t language,
                     const view_box& box, const sight_metrics& metrics, sight_drawing& drawing);

}  // namespace kvt
