// Fuzz target: KVT.ini and the recent list end in values for any bytes, and what is written is read
// again.
#include "core/recent_list.hpp"
#include "core/settings_file.hpp"
#include "require.hpp"

#include <cstddef>
#include <cstdint>
#include <string>

namespace kvt {

namespace {

void check_settings(const std::string& bytes) {
    app_state state;
    read_settings(bytes, state);
    require(state.language >= 0 && state.language <= 2, "the language is one of three codes");
    require(
        first_settings_line(bytes).empty() || state.mnufileprev[1] == first_settings_line(bytes),
        "the first line is the first recent entry");
    const std::string written = write_settings(state);
    app_state again;
    read_settings(written, again);
    require(again.mnufileprev[1] == state.mnufileprev[1] &&
                again.mnufileprev[2] == state.mnufileprev[2] &&
                again.mnufileprev[3] == state.mnufileprev[3],
            "the recent entries survive");
    require(again.last_update_check == state.last_update_check, "the date survives");
    require(again.language == state.language, "the language survives");
    require(write_settings(again) == written, "writing again gives the same bytes");
}

/// A path of the file comes to the front; the other three move down.
void check_recent_list(const std::string& bytes) {
    app_state state;
    read_settings(bytes, state);
    const app_state before = state;
    const std::string path = before.mnufileprev[2];
    update_recent_list(state, path);
    require(state.mnufileprev[0] == path, "the path is the first entry");
    require(path == before.mnufileprev[0] || state.mnufileprev[3] == before.mnufileprev[2],
            "the others move down");
    const std::string folder = folder_of_path(path);
    const std::string name = file_name_of_path(path);
    require(folder.size() + name.size() == path.size() ||
                folder.size() + name.size() + 1 == path.size(),
            "folder and name are the path");
}

}  // namespace

}  // namespace kvt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    kvt::check_settings(bytes);
    kvt::check_recent_list(bytes);
    return 0;
}
