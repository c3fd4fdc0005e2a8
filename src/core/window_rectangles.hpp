// window_rectangles: where the windows stand, in twips (15 to a pixel at 100 % scaling), as data.
#pragma once

#include "base/named_fields.hpp"

#include <cstdint>
#include <optional>
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

/// The stored rectangle of a chart, whole twips. A value of 0 stands for the chart's own default.
struct chart_rectangle {
    std::int16_t height = 0;
    std::int16_t width = 0;
    std::int16_t top = 0;
    std::int16_t left = 0;

    friend bool operator==(const chart_rectangle&, const chart_rectangle&) = default;
};

/// The built-in layout.
struct window_rectangles {
    window_rectangle Form1{8085, 5430, 0, 0};
    window_rectangle portdes{2895, 10200, 8100, 0};
    window_rectangle viewwinfrm{7185, 6375, 0, 8995};
    window_rectangle Perffrm{8085, 3525, 0, 5450};
    window_rectangle select_graphs{2355, 4395, 8100, 10220};
    bool main_window_maximised = true;
    std::optional<window_rectangle> MDIForm1;  ///< of the main window while it is not maximised
    std::optional<window_rectangle> explain,
        port_explain;  ///< of the explanation windows, when the layout file had one
    chart_rectangle FLOW_graphview2, LOAD_graphview2, HERTZ_graphview2, PRESS_RIP_graphview2;
    chart_rectangle VE_graphview2, EFFIC_graphview2, OVREFF_graphview2;

    friend bool operator==(const window_rectangles&, const window_rectangles&) = default;
};

/// The nearest whole pixel, half away from zero, held within what a window can have.
int pixels_of(float twips);

/// The rectangle, moved into the nearest screen when no piece of its title row, wide enough to be
/// dragged, would stand on any of the screens; else as it is. Without screens it stays.
window_rectangle moved_onto(const window_rectangle& window,
                            std::span<const window_rectangle> screens);

using window_rectangle_field = named_field<window_rectangles, window_rectangle>;

/// The five fixed windows in the order of the layout file.
std::span<const window_rectangle_field> window_rectangle_fields();

using chart_rectangle_field = named_field<window_rectangles, chart_rectangle>;

/// The seven charts in the order of the layout file.
std::span<const chart_rectangle_field> chart_rectangle_fields();

}  // namespace kvt
