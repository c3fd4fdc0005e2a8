// model_picture: a model as pixels, shaded, with its edges and cuts, drawn without the help of a
// graphics card; and what a pixel shows.
#pragma once

#include "views/model/model_camera.hpp"
#include "views/model/model_scene.hpp"
#include "views/model/picture_grid.hpp"

#include <cstdint>
#include <optional>
#include <vector>

namespace kvt {

struct model_picture {
    model_camera camera;
    picture_grid grid;
    std::vector<shown_surface> surfaces;  ///< by their numbers in the grid
    std::vector<std::uint32_t> pixels;    ///< 0xffRRGGBB, row by row from the top
};

/// Draws with several threads, 0: as many as the machine runs at once. Each works on rows of its
/// own and computes every pixel as one thread would, so the picture is the same.
/// A surface is as bright as 0.45 + 0.55 |n . l|, n its normal, l towards the light, which stands
/// over the left shoulder. Where a body is cut it shows its own colour, lighter, hatched, and with
/// an outline.
model_picture draw_model(const model_scene& scene, const model_camera& camera, int threads = 0);

/// What a place of a picture shows.
struct picked_point {
    std::size_t part = 0;  ///< of the scene
    point3 point;          ///< where the part stands, mm
};
/// Nothing over the background and outside the picture.
std::optional<picked_point> picked(const model_picture& picture, double x, double y);
/// The point of an edge that is seen nearest to a place, at most `reach` pixels off; its parts'
/// edges are points joined by straight lines, and the points alone count.
std::optional<picked_point> picked_corner(const model_picture& picture, const model_scene& scene,
                                          double x, double y, double reach);

}  // namespace kvt
