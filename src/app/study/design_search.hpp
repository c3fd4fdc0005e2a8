// design_search: of all designs within some ranges those that no other one beats, found without
// calculating them all.
#pragma once

#include "app/study/pareto_front.hpp"
#include "app/study/study.hpp"

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// What a quantity has to come to: value - tolerance .. value + tolerance.
struct search_target {
    std::string quantity;
    double value = 0.0, tolerance = 0.0;
};
/// "capacity=7.5", within 1 %, or "capacity=7.5:0.02". Throws study_problem for anything else.
search_target search_target_of(std::string_view text);

/// What is asked of a search.
struct search_plan {
    std::vector<study_variable> variables;
    double step = 0.01;  ///< of continuous ranges, so that a workshop can type what comes out
    std::vector<search_target> targets;
    std::vector<study_condition> limits;
    std::vector<study_aim> aims;
    std::vector<std::string> recorded;
    std::uint64_t budget = 1000;  ///< designs to be calculated, at most some more
    std::uint32_t seed = 0;
    /// Texts of the variables to begin with, rounded to their levels: a design that is there.
    std::vector<std::vector<std::string>> first;
    calc_stage last = calc_stage::performance;
};

/// The plan as a study: continuous ranges in steps, targets and limits as conditions, targets as
/// quantities that are recorded. Throws study_problem: no variable, no aim, a step that is none.
study_plan study_of_search(const search_plan& plan);

/// One search. Every design that it calculates is calculated once.
class design_search {
  public:
    /// Throws as study_of_search and study.
    design_search(const program& base, const search_plan& plan);

    const study& designs() const { return designs_; }

    /// Calculates all designs where there are no more than the budget, so that the front is exact;
    /// else searches, with the module there. `step` is told each calculated design. Answers whether
    /// it came to its end.
    bool run(unsigned jobs, const std::filesystem::path& module,
             const std::function<void(const study_row&)>& step,
             const std::atomic<bool>* is_given_up = nullptr);

    /// The front so far; the rows are numbered as they were calculated.
    const pareto_front& front() const { return front_; }

  private:
    search_plan plan_;
    study designs_;
    pareto_front front_;
};

}  // namespace kvt
