// sight_drawing: what the ticks of the Design view's menu add to the drawing, as plain data in
// pixels of its box, y down; a widget only paints it.
#pragma once

#include "geometry/point2.hpp"

#include <functional>
#include <string>
#include <vector>

namespace kvt {

/// What an element belongs to; the painter has a colour and a width for each.
enum class sight_ink {
    grid,
    grid_axis,
    scale_bar,
    dimension,
    extension,
    chamber,
    contact,
    measure
};

struct sight_line {
    point2 from, to;
    sight_ink ink = sight_ink::dimension;
};

/// A filled arrow head.
struct sight_arrow {
    point2 tip, left_foot, right_foot;
    sight_ink ink = sight_ink::dimension;
};

struct sight_circle {
    point2 centre;
    double radius = 0.0;
    bool is_filled = false;
    sight_ink ink = sight_ink::dimension;
};

/// A text with a ground of its own, in a rectangle from its upper left corner.
struct sight_text {
    point2 corner;
    double width = 0.0, height = 0.0;
    std::string text;
    sight_ink ink = sight_ink::dimension;
};

struct sight_drawing {
    std::vector<std::vector<point2>> areas;  ///< filled below the drawing
    std::vector<sight_line> grid;            ///< below the drawing, too
    std::vector<sight_line> lines;
    std::vector<sight_arrow> arrows;
    std::vector<sight_circle> circles;
    std::vector<sight_text> texts;
};

/// The room that a text takes, pixels.
struct sight_metrics {
    std::function<double(const std::string&)> width;
    double height = 0.0;
};

}  // namespace kvt
