// study: one design after the other, the base project with other texts typed into some controls,
// calculated on all cores.
#pragma once

#include "app/stages/batch_run.hpp"
#include "app/study/ordered_work.hpp"
#include "app/study/study_condition.hpp"
#include "app/study/study_quantity.hpp"
#include "app/study/study_sample.hpp"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kvt {

struct program;

/// What is asked of a study, as it was written.
struct study_plan {
    std::vector<study_variable> variables;
    study_sample sample;
    std::vector<std::string> recorded;  ///< names of quantities
    std::vector<study_condition> conditions;
    std::vector<study_aim> aims;
    calc_stage last = calc_stage::performance;
};

/// What became of one design.
struct study_row {
    std::uint64_t number = 0;
    std::vector<std::string> texts;  ///< of the variables, in their order
    batch_result result;
    std::vector<std::optional<double>> values;  ///< of the recorded quantities, in their order
    std::vector<std::string> messages, hints;
    bool meets_conditions = false;
    /// By how much it misses them, each relative to its limit; infinite where a value is missing.
    double missed_by = 0.0;
};

/// A plan that can be run. It does not change, so that threads share it.
class study {
  public:
    /// `base` is the open project, on which nothing was calculated. Throws study_problem: an
    /// unknown quantity, one control twice, a grid that is none.
    study(const program& base, study_plan plan);

    const study_plan& plan() const { return plan_; }
    std::uint64_t size() const { return size_; }
    /// Those of the plan, and behind them those of its aims that are not among them.
    const std::vector<chosen_quantity>& recorded() const { return recorded_; }
    /// Where the quantity of an aim stands among the recorded ones.
    std::size_t column_of_aim(std::size_t aim) const { return aim_columns_[aim]; }
    /// "ecc [mm]"
    std::string heading_of_variable(std::size_t variable) const;
    const program& base() const { return *base_; }

    /// What is typed in a design.
    std::vector<std::string> texts_of(std::uint64_t number) const {
        return sampled_texts(plan_.variables, plan_.sample, number);
    }

    /// Calculates a design with these texts in `tried`, whatever it held, as the batch program
    /// would with the same texts typed.
    study_row calculate(std::vector<std::string> texts, program& tried) const;

  private:
    void choose(const std::vector<study_quantity>& quantities);
    exact_results exact_of(const program& tried, const batch_result& result) const;

    std::shared_ptr<const program> base_;
    study_plan plan_;
    std::uint64_t size_;
    std::vector<chosen_quantity> recorded_, conditions_;
    std::vector<std::size_t> aim_columns_;
    std::set<exact_part> parts_;
};

/// The part `shard` = 1 .. `shards` of a study: parts follow each other, and differ in size by one
/// design at most.
work_range part_of_study(std::uint64_t size, std::uint64_t shard, std::uint64_t shards);

/// Runs designs of a study in `jobs` threads. `take` gets each row in its turn and answers whether
/// to go on. True when all were taken.
bool run_study(const study& designs, work_range range, unsigned jobs,
               const std::function<bool(study_row&&)>& take,
               const std::atomic<bool>* is_given_up = nullptr);

}  // namespace kvt
