#include "core/window_rectangles.hpp"

#include <array>

namespace kvt {

namespace {

constexpr std::array WINDOW_RECTANGLE_FIELDS = {
    window_rectangle_field{"", "Form1", &window_rectangles::Form1},
    window_rectangle_field{"", "portdes", &window_rectangles::portdes},
    window_rectangle_field{"", "viewwinfrm", &window_rectangles::viewwinfrm},
    window_rectangle_field{"", "Perffrm", &window_rectangles::Perffrm},
    window_rectangle_field{"", "select_graphs", &window_rectangles::select_graphs},
};

}  // namespace

std::span<const window_rectangle_field> window_rectangle_fields() {
    return WINDOW_RECTANGLE_FIELDS;
}

}  // namespace kvt
