// view_overlays: the outlines of other designs over the calculated pair in the Design view.
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

/// From the first one on.
void paint_overlays(const std::vector<view_overlay>& overlays, QPainter& painter);

}  // namespace kvt
