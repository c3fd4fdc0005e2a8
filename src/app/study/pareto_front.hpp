// pareto_front: of all designs of a study those that no other one beats.
#pragma once

#include "app/study/study.hpp"

#include <cstddef>
#include <vector>

namespace kvt {

/// Whether one is at least as good in every aim, and better in one. Both have a value for each.
bool beats(const std::vector<double>& one, const std::vector<double>& other,
           const std::vector<study_aim>& aims);

/// The front of the rows that it was given: accepted ones that meet the conditions and have a value
/// for each aim.
class pareto_front {
  public:
    explicit pareto_front(const study& designs) : designs_(designs) {}

    /// A row that stands in it already, by its number, is left out.
    void add(study_row row);
    /// In the order of the sample.
    std::vector<study_row> rows() const;
    /// `count` rows of it spread evenly from the best of the first aim to the worst; all when there
    /// are fewer.
    std::vector<study_row> spread_rows(std::size_t count) const;

  private:
    struct member {
        std::vector<double> values;  ///< of the aims
        study_row row;
    };

    const study& designs_;
    std::vector<member> members_;
};

}  // namespace kvt
