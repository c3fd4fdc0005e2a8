#include "views/cursor_position.hpp"

#include "base/checked_math.hpp"

namespace kvt {

std::optional<point2> cursor_position(double x, double y, const view_state& state) {
    if (state.view_scale == 0.0) {
        return std::nullopt;
    }
    return point2{checked_divide(x - state.view_cx - state.view_ecc, state.view_scale),
                  checked_divide(state.view_cy - y, state.view_scale)};
}

}  // namespace kvt
