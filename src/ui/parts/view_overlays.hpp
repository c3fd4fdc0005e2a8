// view_overlays: the outlines of other designs in the Design view, over or below the calculated
// pair.
#pragma once

#include "ui/parts/design_painting.hpp"

#include <QColor>

#include <vector>

class QPainter;

namespace kvt {

/// Outlines in one colour, all of the same width.
struct view_overlay {
    design_painting outlines;
    QColor colour;
    double width = 1.0;  ///< pixels
};

/// Both lists are painted from their first element on.
struct view_overlays {
    std::vector<view_overlay> below, above;
};

void paint_overlays(const std::vector<view_overlay>& overlays, QPainter& painter);

}  // namespace kvt
