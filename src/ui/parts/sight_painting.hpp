// sight_painting: paints what the Design view shows beside its drawing: the surfaces of rotors and
// ports, and what the ticks of its menu add.
#pragma once

#include "views/sight/rotor_fill.hpp"
#include "views/sight/sight_drawing.hpp"
#include "views/sight/sight_palette.hpp"

class QPainter;

namespace kvt {

/// The room that a text takes in the font of the view, the delivered one.
sight_metrics metrics_of_view();

/// What lies below the drawing, lowest first: the rotors, the chambers, the ports, through which
/// both can be seen, and the grid.
void paint_sight_ground(QPainter& painter, const rotor_fill& fill, const sight_drawing& drawing,
                        const sight_palette& palette);
/// What lies above it.
void paint_sight(QPainter& painter, const sight_drawing& drawing, const sight_palette& palette);

}  // namespace kvt
