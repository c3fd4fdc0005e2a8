// Every exact figure of a design, one part after the other.
#pragma once

#include "exact/exact_results.hpp"

namespace kvt {

inline exact_results all_exact_results(const exact_source& source) {
    exact_results exact;
    for (const exact_part part : EXACT_PARTS) {
        work_out(part, source, exact);
    }
    return exact;
}

}  // namespace kvt
