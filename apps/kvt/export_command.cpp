#include "kvt/export_command.hpp"

#include "app/project_entries.hpp"

#include <ostream>
#include <system_error>

namespace kvt {

namespace {

/// DIR/<name of the input>.KVT.
std::string exported_project_path(const design_source& source, const std::filesystem::path& folder) {
    std::filesystem::path name = std::filesystem::path(source.project).filename();
    name.replace_extension(".KVT");
    return (folder / name).string();
}

void create_folder(const std::filesystem::path& folder) {
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    if (failed) {
        throw run_time_error(failure::path_not_found, folder.string());
    }
}

}  // namespace

int export_design(const design_source& source, const std::filesystem::path& folder, std::ostream& out,
                  std::ostream& err) {
    batch_user person(err);
    program kavetta;
    if (const std::optional<batch_end> early = open_design(kavetta, person, source)) {
        return exit_status(*early);
    }
    const std::string path = exported_project_path(source, folder);
    try {
        create_folder(folder);
        write_entries(kavetta, path);
    } catch (const run_time_error& error) {
        err << path << ": " << run_time_error_line(error, source.language) << '\n';
        return EXIT_REFUSED;
    }
    out << path << '\n';
    return EXIT_OK;
}

}  // namespace kvt
