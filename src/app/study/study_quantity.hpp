// study_quantity: the numbers of a calculated design that a study records, by name: results as the
// JSON report names them, entries after the run, and exact figures.
#pragma once

#include "app/stages/batch_run.hpp"
#include "exact/exact_results.hpp"
#include "performance/result_quantities.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

struct program;

/// A design after its run. The exact figures hold the parts that were asked for.
struct finished_design {
    const program& kavetta;
    const batch_result& result;
    const exact_results& exact;
};

/// What a quantity is spread over, and so which indexes stand behind its name: flow_m3s[0][5].
enum class quantity_spread { nothing, speeds, pressures, speeds_and_pressures };
/// "[SPEED][PRESSURE]"; empty for nothing.
std::string index_form(quantity_spread spread);

struct study_quantity {
    std::string name;
    std::string unit;  ///< empty for a ratio
    quantity_spread spread = quantity_spread::nothing;
    std::optional<exact_part> part;  ///< of an exact figure
    /// Nothing where the run did not get there.
    std::function<std::optional<double>(const finished_design&, const result_point&)> value;
};

/// Every quantity, each name once: the numbers behind the result labels, rotors, performance,
/// ports, exact figures (their names begin with exact_), entries. What is spread over speeds,
/// pressures or angles has its extremes, too (flow_m3s_max, sliding_velocity_min). Units are those
/// of the records (mm, Pa, N), of an entry and of the capacity those in force in the project.
std::vector<study_quantity> study_quantities(const program& base);

/// A quantity at a point of the grid, where it is spread over it.
struct chosen_quantity {
    std::string name;  ///< with its indexes
    study_quantity quantity;
    result_point at;

    /// A number; nothing where there is none, or one that is infinite.
    std::optional<double> value_of(const finished_design& design) const;
    /// "flow_m3s[0][5] [m3/s]"
    std::string heading() const;
};

/// The quantity of a name with its indexes, 0 .. 5 each. Throws study_problem: there is none (near
/// names are offered), or it takes other indexes.
chosen_quantity chosen_quantity_of(const std::vector<study_quantity>& quantities,
                                   std::string_view text);

}  // namespace kvt
