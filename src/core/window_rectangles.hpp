// window_rectangles: where the windows stand, in twips (15 to a pixel at 100 % scaling), as data.
#pragma once

#include "core/named_fields.hpp"

#include <span>
#include <string_view>

namespace kvt {

/// Twips to a pixel at 100 % scaling.
inline constexpr int TWIPS_PER_PIXEL = 15;

struct window_rectangle {
    float height = 0.0F;
    float width = 0.0F;
    float top = 0.0F;
    float left = 0.0F;

    friend bool operator==(const window_rectangle&, const window_rectangle&) = default;
};

/// The built-in layout.
struct window_rectangles {
    window_rectangle Form1{8085, 5430, 0, 0};
    window_rectangle portdes{2895, 10200, 8100, 0};
    window_rectangle viewwinfrm{7185, 6375, 0, 8995};
    window_rectangle Perffrm{8085, 3525, 0, 5450};
    window_rectangle select_graphs{2355, 4395, 8100, 10220};
    bool main_window_maximised = true;

    friend bool operator==(const window_rectangles&, const window_rectangles&) = default;
};

using window_rectangle_field = named_field<window_rectangles, window_rectangle>;

/// The five fixed windows in the order of the layout file.
std::span<const window_rectangle_field> window_rectangle_fields();

}  // namespace kvt
