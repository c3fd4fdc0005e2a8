// run_words: how a table says what became of a design.
#pragma once

#include "app/stages/batch_run.hpp"

#include <string>
#include <string_view>

namespace kvt {

// Whether a stage refused something: "ok", "refused", or nothing where it did not run.
std::string ports_word(const batch_result& result);
std::string performance_word(const batch_result& result);

/// The run behind the name of its end and these words. Throws study_problem for an end that is
/// none.
batch_result result_of_words(std::string_view end, std::string_view ports,
                             std::string_view performance);

}  // namespace kvt
