// The title of the main window and of the file dialogs.
#pragma once

#include <string>
#include <string_view>

namespace kvt {

/// Name, version of the product: major, minor and revision.
inline constexpr std::string_view PROGRAM_NAME = "Kavetta";
inline constexpr std::string_view MAJOR_VERSION = "2021";
inline constexpr std::string_view FULL_VERSION = "2021.1.1";

/// "Kavetta V2021"
std::string program_title();

/// "Kavetta V2021 - 'NAME'"
std::string project_title(std::string_view project_name);

}  // namespace kvt
