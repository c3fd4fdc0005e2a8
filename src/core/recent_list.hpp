// recent_list: the four recent projects under the File menu, kept in the captions of mnufileprev 0
// to 3.
#pragma once

#include "core/app_state.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// Puts a path into entry 0 and moves the others down when entry 0 differs from it. A path that
/// already stands in entry 1, 2 or 3 is not removed, so it can stand twice.
void update_recent_list(app_state& state, std::string_view project_path);

/// The text before the last backslash or slash, without it; empty when there is none.
std::string folder_of_path(std::string_view path);

/// The text behind the last backslash or slash.
std::string file_name_of_path(std::string_view path);

}  // namespace kvt
