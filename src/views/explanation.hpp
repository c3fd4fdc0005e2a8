// explanation: a drawing that names the parameters of the forms with dimension lines, as plain
// data; a tool paints it. Lengths mm, angles degrees; x to the right, y up, the inner rotor axis at
// the origin, the outer one at (-ecc, 0).
#pragma once

#include "geometry/point2.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// How an outline is painted.
enum class outline_style { body, space, shaft, housing, background, axis, inlet, outlet, groove };

struct explained_outline {
    outline_style style = outline_style::body;
    std::vector<point2> points;  ///< in order; a closed outline repeats its first point
    bool is_filled = false;
};

/// A straight dimension line with an arrow at the marked ends.
struct measured_line {
    point2 from, to;
    bool arrow_from = false, arrow_to = true;
};

/// A dimension line of an angle: an arc counter-clockwise from `from_deg` to `to_deg`, an arrow at
/// both ends.
struct measured_arc {
    point2 centre;
    double radius = 0.0, from_deg = 0.0, to_deg = 0.0;
};

/// A thin line that leads from the drawing to the end of a dimension line.
struct extension_line {
    point2 from, to;
};

enum class text_side { right_of, left_of, centred };

/// One parameter: its text is the caption of the label that names it on its form.
struct explained_parameter {
    std::string_view form, label;
    point2 text_at;  ///< the text starts right of it, ends left of it, or is centred on it
    text_side side = text_side::right_of;
    std::vector<measured_line> lines;
    std::vector<measured_arc> arcs;
    std::vector<extension_line> extensions;
    std::vector<point2> leader;  ///< from the text to the dimension line or the outline; empty: the
                                 ///< text stands at it
    bool leader_has_arrow = false;
};

/// A short text of the drawing itself, centred: the number of a lobe.
struct explained_mark {
    point2 at;
    std::string text;
};

struct explanation {
    double left = 0.0, right = 0.0, bottom = 0.0, top = 0.0;  ///< what the picture shows
    std::vector<explained_outline> outlines;                  ///< lowest first
    std::vector<explained_parameter> parameters;
    std::vector<explained_mark> marks;
};

}  // namespace kvt
