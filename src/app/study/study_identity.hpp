// study_identity: what makes a study the same study, so that one that was killed is not gone on
// with as another.
#pragma once

#include "app/study/study.hpp"
#include "app/study/study_text.hpp"

#include <string>

namespace kvt {

/// Version of the program, entries of the base project, units and language, variables, sample,
/// quantities, conditions, aims, last stage, part and format, as JSON.
std::string identity_of(const study& designs, const work_range& part, study_format format);

}  // namespace kvt
