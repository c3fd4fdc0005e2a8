// long_study_table: a table of a study as long as a window may hold.
#pragma once

#include "app/study/sample_places.hpp"
#include "app/study/study_table.hpp"
#include "support/open_design.hpp"

#include <memory>
#include <utility>
#include <vector>

namespace kvt {

/// With results by chance; nothing is calculated.
inline study_table long_study_table() {
    constexpr std::uint64_t ROWS = 100000;
    study_plan plan;
    plan.variables = {study_variable_of("ecc=2:2.6")};
    plan.sample = {sample_kind::latin, ROWS, 1};
    plan.recorded = {"capacity", "ripple"};
    const auto designs =
        std::make_shared<const study>(opened_design("n07_engine_oil_groove"), plan);
    std::vector<study_row> rows(ROWS);
    for (std::uint64_t i = 0; i < ROWS; ++i) {
        rows[i].number = i;
        rows[i].texts = designs->texts_of(i);
        rows[i].values = {uniform_number(1, i), uniform_number(2, i)};
        rows[i].messages = {"Minimum value for Outer Rotor Root Radius is 24.8"};
    }
    study_table table(designs);
    table.add(std::move(rows));
    return table;
}

}  // namespace kvt
