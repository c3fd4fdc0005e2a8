#include "core/sight_ticks.hpp"

#include <array>

namespace kvt {

namespace {

constexpr std::array ROWS = {
    sight_tick_row{"sight_filled", "filled", &sight_ticks::filled},
    sight_tick_row{"sight_dimensions", "dimensions", &sight_ticks::dimensions},
    sight_tick_row{"sight_grid", "grid", &sight_ticks::grid},
    sight_tick_row{"sight_contacts", "contacts", &sight_ticks::contacts},
    sight_tick_row{"sight_chambers", "chambers", &sight_ticks::chambers},
    sight_tick_row{"sight_measuring", "measuring", &sight_ticks::measuring},
};

}  // namespace

std::span<const sight_tick_row> sight_tick_rows() {
    return ROWS;
}

}  // namespace kvt
