#include "app/desk/handed_project.hpp"

#include "app/desk/autosave.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"

#include <filesystem>

namespace kvt {

namespace {

/// False too when one of them does not exist.
bool is_same_file(std::string_view path, std::string_view other) {
    std::error_code ignored;
    return std::filesystem::equivalent(path_of_utf8(path), path_of_utf8(other), ignored);
}

}  // namespace

handover_answer answer_handover(const program& kavetta, std::string_view path, bool is_busy) {
    const app_state& state = kavetta.app_state;
    if (state.project_has_file && is_same_file(state.project_path, path)) {
        return handover_answer::shows;
    }
    return is_busy || has_unsaved_changes(kavetta) ? handover_answer::declines
                                                   : handover_answer::takes;
}

handover_answer answer_early_handover(std::string_view start_path, std::string_view path) {
    return is_same_file(start_path, path) ? handover_answer::shows : handover_answer::declines;
}

}  // namespace kvt
