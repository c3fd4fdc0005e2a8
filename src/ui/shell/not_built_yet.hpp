// The one list of controls and menu entries whose command does not exist yet. They are shown, but
// can't be used.
#pragma once

#include <string_view>

namespace kvt {

/// True for a control that stays disabled whatever the enabling record says.
bool is_not_built_yet(std::string_view form, std::string_view control);

}  // namespace kvt
