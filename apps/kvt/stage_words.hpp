// stage_words: the stages as options and reports name them.
#pragma once

#include "app/stages/batch_run.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace kvt {

struct stage_row {
    std::string_view word;
    calc_stage stage;
};

inline constexpr std::array STAGE_ROWS = {stage_row{"profiles", calc_stage::profiles},
                                          stage_row{"ports", calc_stage::ports},
                                          stage_row{"performance", calc_stage::performance}};

inline std::string_view stage_word(calc_stage stage) {
    return std::ranges::find(STAGE_ROWS, stage, &stage_row::stage)->word;
}

}  // namespace kvt
