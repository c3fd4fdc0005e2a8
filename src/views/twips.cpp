#include "views/twips.hpp"

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

}  // namespace kvt
