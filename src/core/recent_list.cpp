// The moves of the recent project list and the two halves of a path as typed.
#include "core/recent_list.hpp"

namespace kvt {

namespace {

/// Paths in files stay as typed, so both kinds of separator are met on every platform.
constexpr std::string_view SEPARATORS = "\\/";

}  // namespace

void update_recent_list(app_state& state, std::string_view project_path) {
    if (state.mnufileprev[0] == project_path) {
        return;
    }
    const std::string first(
        project_path);  // the caller's view may be one of the captions that move
    state.mnufileprev[3] = state.mnufileprev[2];
    state.mnufileprev[2] = state.mnufileprev[1];
    state.mnufileprev[1] = state.mnufileprev[0];
    state.mnufileprev[0] = first;
}

std::string folder_of_path(std::string_view path) {
    const std::size_t last = path.find_last_of(SEPARATORS);
    return last == std::string_view::npos ? "" : std::string(path.substr(0, last));
}

std::string file_name_of_path(std::string_view path) {
    const std::size_t last = path.find_last_of(SEPARATORS);
    return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

}  // namespace kvt
