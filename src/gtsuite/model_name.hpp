// The file name of a project's next model. Source: docs/file-formats.md, "Model files of the
// simulation exchange".
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kvt {

/// PROJECT.gtm when none of the files is the project's, else PROJECT-N.gtm with one more than the
/// highest number that stands there; the name alone counts 0. Files of the project are PROJECT.gtm
/// and PROJECT-<digits>.gtm, letter case ignored.
std::string gt_model_name(std::string_view project, std::span<const std::string> files);

}  // namespace kvt
