// picture_grid: what is seen in each pixel of a picture of a model, and how deep it lies.
#pragma once

#include "views/model/model_camera.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kvt {

/// A piece of a body as the picture shows it: a flat triangle, or where a section cuts the body.
struct shown_surface {
    std::size_t part = 0;  ///< of the scene
    std::uint32_t pixel = 0;
    bool is_cut = false;  ///< then it lies where the sections begin to leave something
    // Depth of the plane of a triangle, mm, within the depths of its corners: one that is nearly
    // seen from its side is steep.
    picture_point corner;
    double depth_per_x = 0.0, depth_per_y = 0.0;
    double nearest = 0.0, farthest = 0.0;

    double depth_at(double x, double y) const;
};

/// Surface 0 is the background.
inline constexpr std::uint32_t NO_SURFACE = 0;

/// Arrays of width times height, row by row from the top.
struct picture_grid {
    picture_grid(int columns, int rows, bool has_sections);

    int width, height;
    std::vector<float> depth;  ///< of what is seen, mm
    std::vector<std::uint32_t> surface;
    // With sections only: what they leave of the line of sight, and how often it enters the body
    // in work behind `from`, less how often it leaves it.
    std::vector<float> from, to;
    std::vector<std::int8_t> entered;

    bool has_sections() const { return !from.empty(); }
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(x);
    }
};

/// Rows of a grid, from `first` to before `end`: what one thread works on.
struct grid_rows {
    int first, end;
};

/// A triangle in the picture. Rows are filled from one side to the other, each side computed from
/// its two ends in the same order whichever triangle asks: triangles that share a side leave no
/// pixel out and none to both.
class filled_triangle {
  public:
    filled_triangle(const picture_point& a, const picture_point& b, const picture_point& c,
                    std::uint32_t surface);

    /// Whether it shows its back in every row; false for one that is nearly seen from its side.
    bool is_turned_away() const { return is_turned_away_; }
    /// Takes the pixels whose centres it covers and where it is nearer than what was there. With
    /// sections the triangle is counted in the pixels behind the kept part's beginning, and fronts
    /// within it are taken.
    void fill(picture_grid& grid, const grid_rows& rows, const shown_surface& plane) const;

  private:
    struct side {
        double x = 0.0, y = 0.0, x_per_y = 0.0;
        side() = default;
        side(const picture_point& upper, const picture_point& lower);
        double at(double row) const { return x + (row - y) * x_per_y; }
    };

    side whole_, upper_, lower_;
    double top_, middle_, bottom_;
    std::uint32_t surface_;
    bool front_when_whole_is_left_;
    bool is_turned_away_;
};

/// Takes the cut of a part where its line of sight enters the kept space inside the body, and
/// forgets what was counted.
void take_cuts(picture_grid& grid, const grid_rows& rows, std::uint32_t surface);

}  // namespace kvt
