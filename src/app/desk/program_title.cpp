#include "app/desk/program_title.hpp"

namespace kvt {

std::string program_title() {
    return std::string(PROGRAM_NAME) + " V" + std::string(MAJOR_VERSION);
}

std::string project_title(std::string_view project_name) {
    return program_title() + " - '" + std::string(project_name) + "'";
}

}  // namespace kvt
