// run_words: how a table says what became of a design.
#pragma once

#include "app/stages/batch_run.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

// Whether a stage refused something: "ok", "refused", or nothing where it did not run.
std::string ports_word(const batch_result& result);
std::string performance_word(const batch_result& result);

/// What was told, in one cell: "first | second", line ends as blanks.
std::string on_one_line(const std::vector<std::string>& messages);

/// The run behind the name of its end and these words. Throws study_problem for an end that is
/// none.
batch_result result_of_words(std::string_view end, std::string_view ports,
                             std::string_view performance);

}  // namespace kvt
