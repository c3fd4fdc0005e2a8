// require: what a fuzz target says must hold.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace kvt {

/// Stops the run, so that libFuzzer keeps the input; assert would do the same but for builds that
/// switch it off.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

}  // namespace kvt
