#include "app/study/pareto_front.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace kvt {

namespace {

/// The values of the aims; nothing where one is missing.
std::optional<std::vector<double>> aimed_values(const study& designs, const study_row& row) {
    std::vector<double> values;
    for (std::size_t i = 0; i < designs.plan().aims.size(); ++i) {
        const std::optional<double> value = row.values[designs.column_of_aim(i)];
        if (!value) {
            return std::nullopt;
        }
        values.push_back(*value);
    }
    return values;
}

}  // namespace

bool beats(const std::vector<double>& one, const std::vector<double>& other,
           const std::vector<study_aim>& aims) {
    bool is_better = false;
    for (std::size_t i = 0; i < aims.size(); ++i) {
        const double ahead = aims[i].is_largest_best ? one[i] - other[i] : other[i] - one[i];
        if (ahead < 0.0) {
            return false;
        }
        is_better = is_better || ahead > 0.0;
    }
    return is_better;
}

void pareto_front::add(study_row row) {
    if (!row.meets_conditions || !row.result.is_accepted()) {
        return;
    }
    std::optional<std::vector<double>> values = aimed_values(designs_, row);
    const std::vector<study_aim>& aims = designs_.plan().aims;
    const auto keeps_out = [&](const member& present) {
        return present.row.number == row.number || beats(present.values, *values, aims);
    };
    if (!values || std::ranges::any_of(members_, keeps_out)) {
        return;
    }
    std::erase_if(members_,
                  [&](const member& present) { return beats(*values, present.values, aims); });
    members_.push_back({std::move(*values), std::move(row)});
}

std::vector<study_row> pareto_front::rows() const {
    std::vector<study_row> rows;
    for (const member& present : members_) {
        rows.push_back(present.row);
    }
    std::ranges::sort(rows, {}, &study_row::number);
    return rows;
}

std::vector<study_row> pareto_front::spread_rows(std::size_t count) const {
    std::vector<member> sorted = members_;
    const bool is_largest_best = designs_.plan().aims.front().is_largest_best;
    std::ranges::sort(sorted, [&](const member& a, const member& b) {
        const double ahead =
            is_largest_best ? a.values[0] - b.values[0] : b.values[0] - a.values[0];
        return ahead != 0.0 ? ahead > 0.0 : a.row.number < b.row.number;
    });
    if (sorted.size() <= count) {
        count = sorted.size();
    }
    std::vector<study_row> rows;
    for (std::size_t i = 0; i < count; ++i) {
        const double step =
            count > 1 ? static_cast<double>(sorted.size() - 1) / static_cast<double>(count - 1)
                      : 0.0;
        rows.push_back(
            sorted[static_cast<std::size_t>(std::nearbyint(static_cast<double>(i) * step))].row);
    }
    return rows;
}

}  // namespace kvt
