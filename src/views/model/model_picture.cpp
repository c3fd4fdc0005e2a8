#include "views/model/model_picture.hpp"

#include "views/model/model_lines.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <thread>

namespace kvt {

namespace {

constexpr double AMBIENT = 0.45;
/// Towards the light in the directions of the picture: right, up, towards the eye; of length 1.
constexpr point3 LIGHT = {-0.36, 0.48, 0.80};
/// How much of the section's colour a cut has, and its hatches.
constexpr double CUT_SHARE = 0.35;
constexpr double HATCH_SHARE = 0.25;
constexpr int HATCH_PIXELS = 8;
/// How far from an edge the pixels of its surfaces may lie, pixels.
constexpr double EDGE_REACH = 1.5;

std::uint32_t packed(double red, double green, double blue) {
    const auto channel = [](double value) {
        return static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.0, 255.0)));
    };
    return 0xff000000U | channel(red) << 16U | channel(green) << 8U | channel(blue);
}

std::uint32_t packed(const rgb_colour& colour, double brightness = 1.0) {
    return packed(colour.red * brightness, colour.green * brightness, colour.blue * brightness);
}

std::uint32_t mixed(const rgb_colour& colour, const rgb_colour& other, double share) {
    const auto between = [share](std::uint8_t from, std::uint8_t to) {
        return from + (to - from) * share;
    };
    return packed(between(colour.red, other.red), between(colour.green, other.green),
                  between(colour.blue, other.blue));
}

double length_of(const point3& direction) {
    return std::sqrt(dot(direction, direction));
}

/// A part of the scene in the picture: the numbers of its surfaces go on from its first one.
struct projected_part {
    std::vector<picture_point> points;
    std::vector<filled_triangle> triangles;
    std::uint32_t first_surface = 0;
    std::uint32_t cut_surface = NO_SURFACE;
    int top = 0, bottom = 0;  ///< rows that it reaches
};

/// The direction from one place to another in mm: right, up, towards the eye.
point3 seen_step(const picture_point& from, const picture_point& to, double scale) {
    return {(to.x - from.x) / scale, (from.y - to.y) / scale, from.depth - to.depth};
}

shown_surface surface_of(std::size_t part, const rgb_colour& colour, const picture_point& a,
                         const picture_point& b, const picture_point& c, double scale) {
    const point3 normal = cross(seen_step(a, b, scale), seen_step(a, c, scale));
    const double length = length_of(normal);
    const double light = length == 0.0 ? 0.0 : std::abs(dot(normal, LIGHT)) / length;
    shown_surface surface;
    surface.part = part;
    surface.pixel = packed(colour, AMBIENT + (1.0 - AMBIENT) * light);
    surface.corner = a;
    if (normal.z != 0.0) {
        surface.depth_per_x = normal.x / normal.z / scale;
        surface.depth_per_y = -normal.y / normal.z / scale;
    }
    const auto [nearest, farthest] = std::minmax({a.depth, b.depth, c.depth});
    surface.nearest = nearest;
    surface.farthest = farthest;
    return surface;
}

class model_drawing {
  public:
    model_drawing(const model_scene& scene, const model_camera& camera, int threads)
        : scene_(scene),
          threads_(threads),
          picture_{camera,
                   picture_grid(camera.width(), camera.height(), !scene.sections.empty()),
                   std::vector<shown_surface>(1),
                   {}} {
        picture_.pixels.resize(picture_.grid.surface.size());
    }

    model_picture draw() {
        for (std::size_t part = 0; part < scene_.parts.size(); ++part) {
            add_part(part);
        }
        in_parallel([this](const grid_rows& rows) { take_surfaces(rows); });
        in_parallel([this](const grid_rows& rows) {
            colour_surfaces(rows);
            draw_edges(rows);
        });
        return std::move(picture_);
    }

  private:
    void add_part(std::size_t number) {
        projected_part part = projected(scene_.parts[number]);
        part.first_surface = static_cast<std::uint32_t>(picture_.surfaces.size());
        for (const auto& corners : scene_.parts[number].mesh->triangles) {
            add_triangle(number, part, corners);
        }
        if (!scene_.sections.empty() && !part.triangles.empty()) {
            part.cut_surface = static_cast<std::uint32_t>(picture_.surfaces.size());
            shown_surface cut;
            cut.part = number;
            cut.is_cut = true;
            picture_.surfaces.push_back(cut);
        }
        parts_.push_back(std::move(part));
    }

    projected_part projected(const model_part& from) const {
        projected_part part;
        part.points.reserve(from.mesh->points.size());
        double top = picture_.grid.height;
        double bottom = 0.0;
        for (const point3& point : from.mesh->points) {
            const picture_point place = picture_.camera.project(turned(point, from.turn));
            top = std::min(top, place.y);
            bottom = std::max(bottom, place.y);
            part.points.push_back(place);
        }
        part.top = static_cast<int>(std::max(top - 1.0, 0.0));
        part.bottom = static_cast<int>(std::min(bottom + 1.0, 1.0 * picture_.grid.height));
        return part;
    }

    void add_triangle(std::size_t number, projected_part& part,
                      const std::array<std::uint32_t, 3>& corners) {
        const picture_point& a = part.points[corners[0]];
        const picture_point& b = part.points[corners[1]];
        const picture_point& c = part.points[corners[2]];
        const auto surface = static_cast<std::uint32_t>(picture_.surfaces.size());
        const filled_triangle triangle(a, b, c, surface);
        if (scene_.sections.empty() && triangle.is_turned_away()) {
            return;
        }
        part.triangles.push_back(triangle);
        picture_.surfaces.push_back(surface_of(number, scene_.parts[number].colour, a, b, c,
                                               picture_.camera.pixels_per_mm()));
    }

    /// Runs a step on bands of rows, each in a thread of its own.
    void in_parallel(const std::function<void(const grid_rows&)>& step) const {
        const int height = picture_.grid.height;
        const int bands = std::clamp(threads_, 1, height);
        std::vector<std::thread> others;
        for (int band = 1; band < bands; ++band) {
            const grid_rows rows = {height * band / bands, height * (band + 1) / bands};
            others.emplace_back([&step, rows] { step(rows); });
        }
        step({0, height / bands});
        for (std::thread& other : others) {
            other.join();
        }
    }

    void take_surfaces(const grid_rows& rows) {
        take_sections(rows);
        for (const projected_part& part : parts_) {
            for (std::size_t i = 0; i < part.triangles.size(); ++i) {
                const shown_surface& plane = picture_.surfaces[part.first_surface + i];
                part.triangles[i].fill(picture_.grid, rows, plane);
            }
            if (part.cut_surface != NO_SURFACE) {
                take_cuts(picture_.grid,
                          {std::max(rows.first, part.top), std::min(rows.end, part.bottom)},
                          part.cut_surface);
            }
        }
    }

    void take_sections(const grid_rows& rows) {
        picture_grid& grid = picture_.grid;
        if (!grid.has_sections()) {
            return;
        }
        const kept_space space(scene_.sections, picture_.camera);
        for (int y = rows.first; y < rows.end; ++y) {
            for (int x = 0; x < grid.width; ++x) {
                const kept_depths kept = space.at(x + 0.5, y + 0.5);
                grid.from[grid.index(x, y)] = static_cast<float>(kept.from);
                grid.to[grid.index(x, y)] = static_cast<float>(kept.to);
            }
        }
    }

    void colour_surfaces(const grid_rows& rows) {
        const picture_grid& grid = picture_.grid;
        const std::uint32_t background = packed(scene_.background);
        for (int y = rows.first; y < rows.end; ++y) {
            for (int x = 0; x < grid.width; ++x) {
                const std::size_t pixel = grid.index(x, y);
                const std::uint32_t number = grid.surface[pixel];
                const shown_surface& surface = picture_.surfaces[number];
                picture_.pixels[pixel] = number == NO_SURFACE ? background
                                         : surface.is_cut     ? cut_pixel(surface.part, x, y)
                                                              : surface.pixel;
            }
        }
    }

    /// Whether a cut ends within the width of a line.
    bool is_outline(int x, int y) const {
        const picture_grid& grid = picture_.grid;
        const int reach = scene_.line_width;
        const std::uint32_t cut = grid.surface[grid.index(x, y)];
        const auto is_cut_too = [&](int near_x, int near_y) {
            return near_x >= 0 && near_y >= 0 && near_x < grid.width && near_y < grid.height &&
                   grid.surface[grid.index(near_x, near_y)] == cut;
        };
        return !(is_cut_too(x - reach, y) && is_cut_too(x + reach, y) && is_cut_too(x, y - reach) &&
                 is_cut_too(x, y + reach));
    }

    /// Neighbouring parts are hatched in different directions.
    std::uint32_t cut_pixel(std::size_t part, int x, int y) const {
        if (is_outline(x, y)) {
            return packed(scene_.edge);
        }
        const int along = part % 2 == 0 ? x + y : x - y;
        const int distance = HATCH_PIXELS * scene_.line_width;
        const bool is_hatch = (along % distance + distance) % distance < scene_.line_width;
        const rgb_colour& colour = scene_.parts[part].colour;
        return is_hatch ? mixed(colour, scene_.edge, HATCH_SHARE)
                        : mixed(colour, scene_.section, CUT_SHARE);
    }

    void draw_edges(const grid_rows& rows) {
        for (std::size_t number = 0; number < parts_.size(); ++number) {
            const model_part& from = scene_.parts[number];
            const bool is_curve = from.mesh->triangles.empty();
            const line_pen pen = {picture_.surfaces, packed(is_curve ? from.colour : scene_.edge),
                                  scene_.line_width,
                                  EDGE_REACH * scene_.line_width / picture_.camera.pixels_per_mm()};
            for (const auto& edge : from.mesh->edges) {
                draw_edge(rows, parts_[number].points, edge, pen);
            }
        }
    }

    void draw_edge(const grid_rows& rows, const std::vector<picture_point>& points,
                   const std::vector<std::uint32_t>& edge, const line_pen& pen) {
        for (std::size_t i = 1; i < edge.size(); ++i) {
            draw_line(picture_.grid, rows, points[edge[i - 1]], points[edge[i]], pen,
                      picture_.pixels);
        }
    }

    const model_scene& scene_;
    int threads_;
    model_picture picture_;
    std::vector<projected_part> parts_;
};

int thread_count(int wanted) {
    constexpr int MOST = 8;
    return wanted > 0 ? wanted
                      : std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, MOST);
}

}  // namespace

model_picture draw_model(const model_scene& scene, const model_camera& camera, int threads) {
    return model_drawing(scene, camera, thread_count(threads)).draw();
}

std::optional<picked_point> picked(const model_picture& picture, double x, double y) {
    const picture_grid& grid = picture.grid;
    if (!(x >= 0.0 && y >= 0.0 && x < grid.width && y < grid.height)) {
        return std::nullopt;
    }
    const std::size_t pixel = grid.index(static_cast<int>(x), static_cast<int>(y));
    const std::uint32_t number = grid.surface[pixel];
    if (number == NO_SURFACE) {
        return std::nullopt;
    }
    const shown_surface& surface = picture.surfaces[number];
    const double depth = surface.is_cut ? grid.depth[pixel] : surface.depth_at(x, y);
    return picked_point{surface.part, picture.camera.point_at({x, y, depth})};
}

std::optional<picked_point> picked_corner(const model_picture& picture, const model_scene& scene,
                                          double x, double y, double reach) {
    std::optional<picked_point> nearest;
    double nearest_distance = reach;
    const double edge_reach = EDGE_REACH / picture.camera.pixels_per_mm();
    for (std::size_t part = 0; part < scene.parts.size(); ++part) {
        const model_part& from = scene.parts[part];
        for (const auto& edge : from.mesh->edges) {
            for (const std::uint32_t corner : edge) {
                const point3 point = turned(from.mesh->points[corner], from.turn);
                const picture_point place = picture.camera.project(point);
                const double distance = std::hypot(place.x - x, place.y - y);
                if (distance <= nearest_distance &&
                    is_seen(picture.grid, picture.surfaces, place, edge_reach)) {
                    nearest = picked_point{part, point};
                    nearest_distance = distance;
                }
            }
        }
    }
    return nearest;
}

}  // namespace kvt
