// snap: the place that is measured from or to: the profiles, ports and centres that are drawn draw
// it to themselves.
#pragma once

#include "geometry/point2.hpp"
#include "views/design_view.hpp"
#include "views/view_state.hpp"

namespace kvt {

enum class snap_kind { free, profile, centre };

/// Twips of the drawing.
struct snapped_place {
    point2 place;
    snap_kind kind = snap_kind::free;
};

/// Within half of a reach about a place: the nearest centre (both axes, those of the arcs), else
/// within the reach the nearest point of a drawn line, arc or circle, else the place itself. Twips
/// of the drawing.
snapped_place snap_to_drawing(const design_view& view, const view_state& state, const point2& place,
                              double reach);

/// The nearest point of a straight element, and of an arc: its foot where the arc covers its
/// direction, else the nearer end. The centre itself for a place in the centre of an arc.
point2 nearest_on_line(const drawn_line& line, const point2& place);
point2 nearest_on_arc(const drawn_arc& arc, const point2& place);

}  // namespace kvt
