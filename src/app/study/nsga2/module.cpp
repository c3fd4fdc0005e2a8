// The module kvt_search: NSGA-II of the library pagmo behind one function, so that neither program
// links it.
#include "app/study/front_search.hpp"

#include <cmath>
#include <exception>
#include <pagmo/algorithm.hpp>
#include <pagmo/algorithms/nsga2.hpp>
#include <pagmo/batch_evaluators/member_bfe.hpp>
#include <pagmo/bfe.hpp>
#include <pagmo/population.hpp>
#include <pagmo/problem.hpp>
#include <string>
#include <utility>

namespace kvt {

namespace {

level_numbers levels_of(const pagmo::vector_double& numbers) {
    level_numbers levels;
    for (const double number : numbers) {
        levels.push_back(static_cast<std::size_t>(std::nearbyint(number)));
    }
    return levels;
}

pagmo::vector_double numbers_of(const level_numbers& levels) {
    return {levels.begin(), levels.end()};
}

/// The problem as the library sees it: whole numbers from 0 to the last level.
class levels_problem {
  public:
    levels_problem() = default;  // the library makes one and assigns to it
    explicit levels_problem(const front_search& search) : search_(&search) {}

    pagmo::vector_double fitness(const pagmo::vector_double& numbers) const {
        return search_->values({levels_of(numbers)}).front();
    }
    /// Many designs behind each other.
    pagmo::vector_double batch_fitness(const pagmo::vector_double& numbers) const {
        const std::size_t size = search_->level_counts.size();
        std::vector<level_numbers> generation;
        for (std::size_t start = 0; start < numbers.size(); start += size) {
            const auto first = numbers.begin() + static_cast<std::ptrdiff_t>(start);
            generation.push_back(levels_of({first, first + static_cast<std::ptrdiff_t>(size)}));
        }
        pagmo::vector_double all;
        for (const std::vector<double>& values : search_->values(generation)) {
            all.insert(all.end(), values.begin(), values.end());
        }
        return all;
    }
    std::pair<pagmo::vector_double, pagmo::vector_double> get_bounds() const {
        pagmo::vector_double last;
        for (const std::size_t count : search_->level_counts) {
            last.push_back(static_cast<double>(count - 1));
        }
        return {pagmo::vector_double(last.size(), 0.0), last};
    }
    pagmo::vector_double::size_type get_nobj() const { return search_->aim_count; }
    pagmo::vector_double::size_type get_nix() const { return search_->level_counts.size(); }
    pagmo::thread_safety get_thread_safety() const { return pagmo::thread_safety::none; }

    template <typename archive>
    void serialize(archive&, unsigned) {}

  private:
    const front_search* search_ = nullptr;
};

pagmo::population first_generation(const front_search& search) {
    pagmo::population generation(pagmo::problem(levels_problem(search)), 0, search.seed);
    const std::vector<std::vector<double>> values = search.values(search.first);
    for (std::size_t i = 0; i < search.first.size(); ++i) {
        generation.push_back(numbers_of(search.first[i]), values[i]);
    }
    return generation;
}

pagmo::algorithm nsga2_by_generations(std::uint32_t seed) {
    constexpr double CROSSOVER = 0.95;
    constexpr double CROSSOVER_INDEX = 10.0;
    constexpr double MUTATION = 0.1;
    constexpr double MUTATION_INDEX = 20.0;
    pagmo::nsga2 nsga2(1, CROSSOVER, CROSSOVER_INDEX, MUTATION, MUTATION_INDEX, seed);
    nsga2.set_bfe(pagmo::bfe(pagmo::member_bfe()));
    return pagmo::algorithm(std::move(nsga2));
}

}  // namespace

extern "C" __attribute__((visibility("default"))) void kvt_run_front_search(
    const front_search& search) {
    const pagmo::algorithm nsga2 = nsga2_by_generations(search.seed);
    pagmo::population generation = first_generation(search);
    while (search.goes_on()) {
        generation = nsga2.evolve(generation);
    }
}

}  // namespace kvt
