#include "app/study/run_words.hpp"

#include "app/study/study_problem.hpp"

#include <algorithm>
#include <array>

namespace kvt {

namespace {

constexpr std::string_view OK = "ok";
constexpr std::string_view REFUSED = "refused";

constexpr std::array ENDS = {batch_end::ok,        batch_end::validation, batch_end::failure,
                             batch_end::closing,   batch_end::error,      batch_end::fatal,
                             batch_end::read_error};

batch_end end_of(std::string_view name) {
    const auto found = std::ranges::find(ENDS, name, batch_end_name);
    if (found == ENDS.end()) {
        throw study_problem("no_row", {std::string(name)});
    }
    return *found;
}

std::string word_of_stage(bool has_run, bool is_refused) {
    return std::string(is_refused ? REFUSED : has_run ? OK : "");
}

}  // namespace

std::string ports_word(const batch_result& result) {
    return word_of_stage(result.ports_reached, result.ports_refused);
}

std::string performance_word(const batch_result& result) {
    return word_of_stage(result.performance_reached, result.performance_refused);
}

std::string on_one_line(const std::vector<std::string>& messages) {
    std::string text;
    for (const std::string& message : messages) {
        text += text.empty() ? "" : " | ";
        for (const char c : message) {
            const bool is_line_end = c == '\r' || c == '\n';
            if (!is_line_end) {
                text += c;
            } else if (!text.ends_with(' ')) {
                text += ' ';
            }
        }
    }
    return text;
}

batch_result result_of_words(std::string_view end, std::string_view ports,
                             std::string_view performance) {
    batch_result result;
    result.end = end_of(end);
    result.profiles_reached = result.end != batch_end::validation;
    result.ports_reached = !ports.empty();
    result.ports_refused = ports == REFUSED;
    result.performance_reached = performance == OK;
    result.performance_refused = performance == REFUSED;
    return result;
}

}  // namespace kvt
