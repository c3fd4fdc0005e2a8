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

constexpr std::array CHART_RECTANGLE_FIELDS = {
    chart_rectangle_field{"", "FLOW_graphview2", &window_rectangles::FLOW_graphview2},
    chart_rectangle_field{"", "LOAD_graphview2", &window_rectangles::LOAD_graphview2},
    chart_rectangle_field{"", "HERTZ_graphview2", &window_rectangles::HERTZ_graphview2},
    chart_rectangle_field{"", "PRESS_RIP_graphview2", &window_rectangles::PRESS_RIP_graphview2},
    chart_rectangle_field{"", "VE_graphview2", &window_rectangles::VE_graphview2},
    chart_rectangle_field{"", "EFFIC_graphview2", &window_rectangles::EFFIC_graphview2},
    chart_rectangle_field{"", "OVREFF_graphview2", &window_rectangles::OVREFF_graphview2},
};

}  // namespace

std::span<const window_rectangle_field> window_rectangle_fields() {
    return WINDOW_RECTANGLE_FIELDS;
}

std::span<const chart_rectangle_field> chart_rectangle_fields() {
    return CHART_RECTANGLE_FIELDS;
}

}  // namespace kvt
