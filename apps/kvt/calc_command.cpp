#include "kvt/calc_command.hpp"

#include "app/program.hpp"
#include "app/stages/silent_user.hpp"
#include "app/study/ordered_work.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/json_report.hpp"
#include "kvt/text_report.hpp"

#include <algorithm>
#include <ostream>

namespace kvt {

namespace {

/// A project's line and exit status.
struct calculated_project {
    std::string line;
    int status = EXIT_OK;
};

/// A project that can't be read is told in the status bar: here it stands among the messages.
class project_user : public silent_user {
  public:
    void show_status(std::string_view text) override { status_ = text; }
    std::vector<std::string> all_messages(batch_end end) const {
        std::vector<std::string> all = messages();
        if (end == batch_end::read_error) {
            all.push_back(status_);
        }
        return all;
    }

  private:
    std::string status_;
};

calculated_project calculate_project(const calc_request& request, const std::string& path) {
    project_user person;
    program kavetta;
    kavetta.date = request.date;
    design_source source = request.source;
    source.project = path;
    const batch_result result = calculate_design(kavetta, person, source, request.last);
    return {json_report_line(path, kavetta, person.all_messages(result.end), result, request.full,
                             request.exact),
            exit_status(result)};
}

}  // namespace

std::string calc_options_problem(const calc_request& request) {
    if (request.json_lines && !request.json_file.empty()) {
        return "--json is of one project, --jsonl of many";
    }
    if (request.projects.size() > 1 && !request.json_lines) {
        return "several projects need --jsonl";
    }
    return {};
}

int calc_design(const calc_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program kavetta;
    kavetta.date = request.date;
    const batch_result result = calculate_design(kavetta, person, request.source, request.last);
    person.show_hints(kavetta.hints, request.source.language);
    if (request.json_file != "-") {
        out << text_report(kavetta, result);
    }
    if (request.json_file.empty()) {
        return exit_status(result);
    }
    const std::string report =
        json_report(kavetta, person.messages(), result, request.full, request.exact);
    if (request.json_file == "-") {
        out << report;
        return exit_status(result);
    }
    try {
        write_file(path_of_utf8(request.json_file), report, disk_write::left_to_the_system);
    } catch (const run_time_error& error) {
        err << request.json_file << ": " << run_time_error_line(error, request.source.language)
            << '\n';
        return result.end == batch_end::read_error ? EXIT_UNREADABLE : EXIT_REFUSED;
    }
    return exit_status(result);
}

int calc_projects(const calc_request& request, std::ostream& out) {
    using work = ordered_work<calculated_project>;
    const unsigned jobs = request.jobs == 0 ? processor_count() : request.jobs;
    int status = EXIT_OK;
    work({0, request.projects.size()}, jobs)
        .run(
            [&]() -> work::worker {
                return [&](std::uint64_t number) {
                    return calculate_project(request,
                                             request.projects[static_cast<std::size_t>(number)]);
                };
            },
            [&](std::uint64_t, const calculated_project& project) {
                out << project.line;
                status = std::max(status, project.status);
                return static_cast<bool>(out);
            });
    return status;
}

}  // namespace kvt
