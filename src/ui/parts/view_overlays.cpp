#include "ui/parts/view_overlays.hpp"

namespace kvt {

void paint_overlays(const std::vector<view_overlay>& overlays, QPainter& painter) {
    for (const view_overlay& each : overlays) {
        each.outlines.paint_outlines(painter, each.colour, each.width);
    }
}

}  // namespace kvt
