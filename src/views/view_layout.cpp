#include "views/view_layout.hpp"

#include "base/checked_math.hpp"

#include <algorithm>

namespace kvt {

namespace {

/// What the form is higher and wider than its picture, twips.
constexpr double HEIGHT_BEYOND_PICTURE = 1185.0;
constexpr double WIDTH_BEYOND_PICTURE = 390.0;
constexpr double LARGEST_VIEW_SIZE = 32767.0;

/// The buttons and the angle stand in one row, the label above it; twips from the form's lower
/// edge.
constexpr double ROW_HEIGHT = 900.0;
constexpr double LABEL_HEIGHT = 1100.0;

}  // namespace

std::optional<view_layout> resize_view(double form_height, app_state& state) {
    state.view_size = to_int16(std::min(form_height - HEIGHT_BEYOND_PICTURE, LARGEST_VIEW_SIZE));
    if (state.view_size < 0) {
        return std::nullopt;
    }
    const double side = state.view_size;
    const double H = side + HEIGHT_BEYOND_PICTURE;
    const double row = H - ROW_HEIGHT;
    view_layout layout;
    layout.picture_side = side;
    layout.form_height = H;
    layout.form_width = side + WIDTH_BEYOND_PICTURE;
    layout.rotate_rotors_cw = {120.0, row};
    layout.rotate_rotors_ccw = {720.0, row};
    layout.rotate_label = {120.0, H - LABEL_HEIGHT};
    layout.rotated_angle = {1320.0, row};
    layout.zoom_all_command = {2400.0, row};
    return layout;
}

}  // namespace kvt
