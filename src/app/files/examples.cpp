#include "app/files/examples.hpp"

#include "app/desk/autosave.hpp"
#include "app/desk/program_title.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/whole_load.hpp"
#include "base/path_text.hpp"

#include <algorithm>
#include <system_error>

namespace kvt {

namespace {

namespace fs = std::filesystem;

std::string name_of_example(const fs::path& file) {
    std::string name = utf8_of_path(file.stem());
    std::ranges::replace(name, '_', ' ');
    return name;
}

void load_example(program& kavetta, user& person, const std::string& path) {
    load_whole(kavetta, [&] { load_entries(kavetta, person, path); });
    kavetta.app_state.project_has_file = false;
    kavetta.labels.title = project_title(kavetta.app_state.project_name);
    note_new_entries(kavetta);
}

}  // namespace

std::vector<delivered_example> delivered_examples(const fs::path& folder) {
    std::vector<delivered_example> found;
    std::error_code error;
    for (fs::directory_iterator file(folder, error), end; !error && file != end;
         file.increment(error)) {
        if (file->path().extension() == ".KVT") {
            found.push_back({name_of_example(file->path()), utf8_of_path(file->path())});
        }
    }
    std::ranges::sort(found, {}, &delivered_example::name);
    return found;
}

void open_example(program& kavetta, user& person, std::string_view path) {
    try {
        load_example(kavetta, person, std::string(path));
        person.show_status(
            std::string(message_text(message::example_opened, kavetta.app_state.language)));
    } catch (const run_time_error& error) {
        show_failure_status(kavetta, person, message::open_failed, error);
    }
}

}  // namespace kvt
