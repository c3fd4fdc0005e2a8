// file_ending: the ending that a file's name gets when it was typed without one.
#pragma once

#include <string>
#include <string_view>

namespace kvt {

/// The path with a point and the extension behind it, unless it ends in them, in any case of
/// letters: "Pump 2.5" becomes "Pump 2.5.KVT", "pump.kvt" stays. Nothing is added to an empty path,
/// nor without an extension.
std::string with_ending(std::string_view path, std::string_view extension);

}  // namespace kvt
