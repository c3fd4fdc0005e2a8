// The smallest and the largest value of a grid, by strict comparison with start values.
#pragma once

namespace kvt {

/// A value strictly above largest replaces it, one strictly below smallest replaces that.
inline void take_extremes(double value, double& largest, double& smallest) {
    if (value > largest) {
        largest = value;
    }
    if (value < smallest) {
        smallest = value;
    }
}

}  // namespace kvt
