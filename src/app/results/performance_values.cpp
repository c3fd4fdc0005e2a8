// The results of Calculate Performance, by the table of the result quantities.
#include "app/results/result_sections.hpp"
#include "performance/result_quantities.hpp"

#include <algorithm>

namespace kvt {

namespace {

std::span<const double> used_part(const perf_array& numbers, std::size_t used) {
    return std::span(numbers.begin(), numbers.end()).first(std::min(numbers.size(), used));
}

/// [speed][pressure]; the rows lie behind one another.
number_block block_of(const perf_grid& grid) {
    static_assert(sizeof(perf_grid) == GRID_SIZE * GRID_SIZE * sizeof(double));
    return {{GRID_SIZE, GRID_SIZE}, {std::span(grid.front().data(), GRID_SIZE * GRID_SIZE)}};
}

/// [speed][degree]
number_block block_of(const perf_speed_angles& angles) {
    number_block block{{GRID_SIZE, ANGLE_ARRAY_LAST + 1}, {}};
    for (const perf_array& speed : angles) {
        block.pieces.push_back(used_part(speed, ANGLE_ARRAY_LAST + 1));
    }
    return block;
}

/// [speed][pressure][degree], the angles 0 .. 179 at which contacts are computed (0 is never one of
/// them).
number_block block_of(const perf_grid_angles& contacts) {
    number_block block{{GRID_SIZE, GRID_SIZE, CONTACT_ANGLE_LAST + 1}, {}};
    for (const auto& speed : contacts) {
        for (const perf_array& angles : speed) {
            block.pieces.push_back(used_part(angles, CONTACT_ANGLE_LAST + 1));
        }
    }
    return block;
}

/// The value of a result, whatever it is spread over.
struct content_of_source {
    const perf_results& results;

    value_content operator()(result_value field) const { return results.*field; }
    value_content operator()(worked_out_value value) const { return value(results); }
    value_content operator()(speed_list list) const { return content_of(results.*list.member); }
    value_content operator()(pressure_list list) const { return content_of(results.*list.member); }
    value_content operator()(result_grid grid) const { return block_of(results.*grid); }
    value_content operator()(angle_array array) const {
        return content_of(used_part(results.*array.member, array.used_count));
    }
    value_content operator()(speed_angles angles) const { return block_of(results.*angles); }
    value_content operator()(grid_angles angles) const { return block_of(results.*angles); }
    /// A table that lies nowhere is none of a record.
    value_content operator()(worked_out_grid) const { return number_block{}; }
};

}  // namespace

named_values performance_values(const perf_results& results) {
    named_values values;
    for (const result_quantity& quantity : result_quantities()) {
        if (quantity.json != json_part::none) {
            values.push_back({std::string(quantity.name),
                              std::visit(content_of_source{results}, quantity.source),
                              quantity.json == json_part::full});
        }
    }
    return values;
}

}  // namespace kvt
