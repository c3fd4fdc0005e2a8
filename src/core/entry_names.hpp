// entry_names: what an entry is called outside its form, put together from the captions that stand
// around it there.
#pragma once

#include "core/captions.hpp"
#include "core/entries.hpp"

#include <string>

namespace kvt {

/// "Eccentricity", "Inlet Port: Inner Radius", "Speed Range (RPM), low", in the language and with
/// the units that the captions have now. A check box is called as its own caption.
std::string entry_name(const entry_field& entry, const captions& shown);

}  // namespace kvt
