// entry_names: the label beside an entry, and what the entry is called outside its form, put
// together from the captions that stand around it there.
#pragma once

#include "core/captions.hpp"
#include "core/entries.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace kvt {

/// The control with the caption of an entry's own box: "Label3" of ecc. Empty for a check box and
/// for two boxes that share a caption.
const char* entry_label(std::string_view entry);

/// "Eccentricity", "Inlet Port: Inner Radius", "Metering Groove: Width (mm)", in the language and
/// with the units that the captions have now. One of two boxes beside a caption is called as a
/// screen reader calls it: "Lowest Speed". A check box is called as its own caption.
std::string entry_name(const entry_field& entry, const captions& shown, std::int16_t language);

}  // namespace kvt
