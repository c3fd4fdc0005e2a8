// percent_text: texts of any letters as plain ASCII, each byte of their UTF-8 that is none as "%"
// and two digits (RFC 3986, 2.1), for lines of files in a code page that does not have the letters.
#pragma once

#include <string>
#include <string_view>

namespace kvt {

/// "pump" as it is, "Ж" as "%D0%96", "%" as "%25". Letters, digits and the other visible signs of
/// ASCII and the blank stay.
std::string percent_text(std::string_view utf8);

/// The text of a percent_text. A "%" without two hexadecimal digits behind it stands for itself.
std::string text_of_percent(std::string_view text);

}  // namespace kvt
