#include "views/sight/view_box.hpp"

#include "core/form_table.hpp"

namespace kvt {

view_box::view_box(const view_state& state)
    : scale_(1.0 / TWIPS_PER_PIXEL),
      side_(state.view_size / TWIPS_PER_PIXEL),
      twips_of_mm_(state.view_scale),
      inner_axis_{state.view_cx + state.view_ecc, state.view_cy} {
    if (state.drawn_size > 0 && state.view_size > 0) {
        scale_ = static_cast<double>(state.view_size) / state.drawn_size / TWIPS_PER_PIXEL;
    }
}

point2 view_box::of_pump(const point2& mm) const {
    return on_box({inner_axis_.x + twips_of_mm_ * mm.x, inner_axis_.y - twips_of_mm_ * mm.y});
}

std::optional<point2> view_box::on_pump(const point2& pixels) const {
    if (twips_of_mm_ == 0.0) {
        return std::nullopt;
    }
    const point2 place = on_drawing(pixels);
    return point2{(place.x - inner_axis_.x) / twips_of_mm_,
                  (inner_axis_.y - place.y) / twips_of_mm_};
}

}  // namespace kvt
