#include "kvt/study_output.hpp"

#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "app/study/study_files.hpp"
#include "app/study/study_problem.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"

#include <ostream>
#include <system_error>

namespace kvt {

study_format study_out::format() const {
    return json_lines || std::string_view(out).ends_with(".jsonl") ? study_format::json_lines
                                                                   : study_format::csv;
}

std::filesystem::path study_out::table() const {
    const std::filesystem::path path = path_of_utf8(out);
    if (saved_count == 0) {
        return path;
    }
    return path / (format() == study_format::csv ? "study.csv" : "study.jsonl");
}

void study_out::make_folder() const {
    std::error_code error;
    if (saved_count > 0) {
        std::filesystem::create_directories(path_of_utf8(out), error);
    }
    if (error) {
        throw run_time_error(failure::path_file_access, out,
                             {file_fault::reason::system, error.value()});
    }
}

int run_on_project(const design_source& source, const study_out& where, std::ostream& err,
                   const std::function<int(const program& base)>& run) {
    batch_user person(err);
    program base;
    if (const auto early = open_design(base, person, source)) {
        return exit_status(*early);
    }
    try {
        return run(base);
    } catch (const study_problem& problem) {
        err << problem.text(source.language) << '\n';
        return EXIT_USAGE;
    } catch (const run_time_error& error) {
        err << where.out << ": " << run_time_error_line(error, source.language) << '\n';
        return EXIT_REFUSED;
    }
}

void save_projects(const study& designs, const std::vector<study_row>& best, const study_out& where,
                   std::ostream& out) {
    std::size_t number = 0;
    for (const study_row& row : best) {
        ++number;
        const std::string name = "best_" + std::to_string(number) + ".KVT";
        const std::string path = utf8_of_path(path_of_utf8(where.out) / path_of_utf8(name));
        write_entries(with_typed_texts(designs, row.texts), path);
        out << path << '\n';
    }
}

}  // namespace kvt
