// stage_entries: the entries as each stage of the work found them when it ran last.
#pragma once

#include "core/entries.hpp"

#include <cstdint>
#include <optional>

namespace kvt {

struct noted_entries {
    kvt::entries boxes;
    std::int16_t drawing_units = 0;
};

struct stage_entries {
    std::optional<noted_entries> profiles, ports, performance;
};

}  // namespace kvt
