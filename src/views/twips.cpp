#include "views/twips.hpp"

#include "base/checked_math.hpp"
#include "base/run_time_error.hpp"

#include <cmath>
#include <limits>

namespace kvt {

float single(double twips) {
    if (!(std::fabs(twips) <= static_cast<double>(std::numeric_limits<float>::max()))) {
        throw run_time_error(failure::overflow, "line coordinate");
    }
    return static_cast<float>(twips);
}

std::optional<point2> cursor_position(double x, double y, const view_state& state) {
    if (state.view_scale == 0.0) {
        return std::nullopt;
    }
    return point2{checked_divide(x - state.view_cx - state.view_ecc, state.view_scale),
                  checked_divide(state.view_cy - y, state.view_scale)};
}

}  // namespace kvt
