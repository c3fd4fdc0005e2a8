// stage_entries: the entries as each stage of the work found them when it ran last, and as the
// results in the records were made from.
#pragma once

#include "core/entries.hpp"

#include <cstdint>
#include <optional>

namespace kvt {

struct noted_entries {
    kvt::entries boxes;
    std::int16_t drawing_units = 0;

    friend bool operator==(const noted_entries&, const noted_entries&) = default;
};

struct stage_entries {
    std::optional<noted_entries> profiles, ports, performance;

    /// What whole results of the open project were made from; nothing while the records hold none:
    /// no run yet, one that failed, or those of the project before.
    std::optional<noted_entries> rotors, inlet, outlet, groove, perf_results;

    friend bool operator==(const stage_entries&, const stage_entries&) = default;
};

/// One of the results that files are written from.
using result_note = std::optional<noted_entries> stage_entries::*;

}  // namespace kvt
