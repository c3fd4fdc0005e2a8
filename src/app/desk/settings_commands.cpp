#include "app/desk/settings_commands.hpp"

#include "app/program.hpp"
#include "base/text_file.hpp"
#include "core/recent_list.hpp"
#include "core/settings_file.hpp"

#include <filesystem>
#include <system_error>

namespace kvt {

void save_settings(const program& kavetta) {
    write_file(kavetta.folder / SETTINGS_FILE_NAME, write_settings(kavetta.app_state));
}

std::string existing_folder_of(const program& kavetta, const std::string& path) {
    const std::string folder = folder_of_path(path);
    std::error_code ignored;
    if (!folder.empty() && std::filesystem::is_directory(folder, ignored)) {
        return folder;
    }
    return (kavetta.folder / "projects").string();
}

void find_projects_folder(program& kavetta) {
    std::string& folder = kavetta.app_state.projects_folder;
    if (folder.empty()) {
        folder = existing_folder_of(
            kavetta, first_settings_line(read_file(kavetta.folder / SETTINGS_FILE_NAME)));
    }
}

}  // namespace kvt
