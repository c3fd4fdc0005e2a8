// model_scene: what a picture of a model shows, bodies with their colours, turns and cuts.
#pragma once

#include "geometry/body_mesh.hpp"
#include "geometry/point2.hpp"
#include "views/model/section_plane.hpp"
#include "views/rgb_colour.hpp"

#include <vector>

namespace kvt {

/// A turn about a vertical axis, radians, counter-clockwise as seen from above.
struct part_turn {
    point2 axis;
    double angle = 0.0;

    friend bool operator==(const part_turn&, const part_turn&) = default;
};
point3 turned(const point3& point, const part_turn& turn);
part_turn back(const part_turn& turn);

struct model_part {
    const body_mesh* mesh = nullptr;  ///< closed, or edges alone
    rgb_colour colour;
    part_turn turn;

    friend bool operator==(const model_part&, const model_part&) = default;
};

struct model_scene {
    std::vector<model_part> parts;
    std::vector<section_plane> sections;  ///< of parts that are closed
    rgb_colour background, edge;
    rgb_colour section;  ///< what the colour of a body is mixed with where it is cut
    int line_width = 1;  ///< of the edges, pixels

    friend bool operator==(const model_scene&, const model_scene&) = default;
};

/// Every corner of every part, where it stands.
std::vector<point3> points_of(const model_scene& scene);

}  // namespace kvt
