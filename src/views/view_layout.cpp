#include "views/view_layout.hpp"

#include "base/checked_math.hpp"

#include <algorithm>

namespace kvt {

namespace {

/// What the form is higher and wider than its picture, twips.
constexpr double HEIGHT_BEYOND_PICTURE = 1185.0;
constexpr double WIDTH_BEYOND_PICTURE = 390.0;
constexpr double LARGEST_VIEW_SIZE = 32767.0;

}  // namespace

std::optional<view_layout> resize_view(double form_height, view_state& state) {
    state.view_size = to_int16(std::min(form_height - HEIGHT_BEYOND_PICTURE, LARGEST_VIEW_SIZE));
    if (state.view_size < 0) {
        return std::nullopt;
    }
    const double side = state.view_size;
    return view_layout{side, side + HEIGHT_BEYOND_PICTURE, side + WIDTH_BEYOND_PICTURE};
}

}  // namespace kvt
