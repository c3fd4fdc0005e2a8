#include "app/study/study_sample.hpp"

#include "app/study/sample_places.hpp"
#include "app/study/study_problem.hpp"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cstddef>

namespace kvt {

namespace {

constexpr std::uint64_t MOST_DESIGNS = std::uint64_t{1} << 53U;

std::uint64_t count_of(std::string_view text) {
    std::uint64_t count = 0;
    const char* end = text.data() + text.size();
    const auto [behind, failed] = std::from_chars(text.data(), end, count);
    const bool is_count = failed == std::errc() && behind == end;
    if (!is_count || count == 0 || count > MOST_DESIGNS) {
        throw study_problem("no_count", {std::string(text)});
    }
    return count;
}

std::uint64_t grid_count(const std::vector<study_variable>& variables) {
    std::uint64_t count = 1;
    for (const study_variable& variable : variables) {
        if (variable.is_continuous()) {
            throw study_problem("no_grid", {variable.control});
        }
        if (count > MOST_DESIGNS / variable.levels.size()) {
            throw study_problem("large_grid");
        }
        count *= variable.levels.size();
    }
    return count;
}

bool varies(const study_variable& variable) {
    return variable.is_continuous() ||
           std::ranges::any_of(variable.levels, [&](const std::string& level) {
               return level != variable.levels.front();
           });
}

std::uint64_t sample_count(const std::vector<study_variable>& variables,
                           const study_sample& sample) {
    if (sample.count > 1 && std::ranges::none_of(variables, varies)) {
        throw study_problem("all_the_same", {std::to_string(sample.count)});
    }
    return sample.count;
}

std::vector<std::string> grid_texts(const std::vector<study_variable>& variables,
                                    std::uint64_t number) {
    std::vector<std::string> texts(variables.size());
    for (std::size_t i = variables.size(); i-- > 0;) {
        const std::vector<std::string>& levels = variables[i].levels;
        texts[i] = levels[static_cast<std::size_t>(number % levels.size())];
        number /= levels.size();
    }
    return texts;
}

}  // namespace

study_sample study_sample_of(std::string_view text) {
    if (text == "grid") {
        return {};
    }
    for (const auto& [word, kind] :
         {std::pair<std::string_view, sample_kind>("latin:", sample_kind::latin),
          std::pair<std::string_view, sample_kind>("sobol:", sample_kind::sobol)}) {
        if (text.starts_with(word)) {
            return {kind, count_of(text.substr(word.size())), 0};
        }
    }
    throw study_problem("no_sample", {std::string(text)});
}

std::uint64_t design_count(const std::vector<study_variable>& variables,
                           const study_sample& sample) {
    switch (sample.kind) {
        case sample_kind::grid:
            return grid_count(variables);
        case sample_kind::searched:
            return sample.count;
        default:
            return sample_count(variables, sample);
    }
}

std::vector<std::string> sampled_texts(const std::vector<study_variable>& variables,
                                       const study_sample& sample, std::uint64_t number) {
    assert(sample.kind != sample_kind::searched);
    if (sample.kind == sample_kind::grid) {
        return grid_texts(variables, number);
    }
    const std::vector<double> place =
        sample.kind == sample_kind::latin
            ? latin_place(number, sample.count, variables.size(), sample.seed)
            : sobol_place(number, variables.size(), sample.seed);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < variables.size(); ++i) {
        texts.push_back(text_at(variables[i], place[i]));
    }
    return texts;
}

}  // namespace kvt
