#include "kvt/driven_host.hpp"

#include "app/stages/batch_run.hpp"
#include "automation/no_host.hpp"
#include "automation/recorder_host.hpp"
#include "automation/system_host.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/option_check.hpp"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <ostream>
#include <vector>

namespace kvt {

namespace {

int status_of(bool done) {
    return done ? EXIT_OK : EXIT_REFUSED;
}

int write_log(const automation::recorder_host& programs, const host_request& request,
              std::int16_t language, std::ostream& err) {
    try {
        write_file(path_of_utf8(request.log_file),
                   programs.log(request.full_log ? automation::log_length::full
                                                 : automation::log_length::shortened),
                   disk_write::left_to_the_system);
    } catch (const run_time_error& error) {
        err << request.log_file << ": " << run_time_error_line(error, language) << '\n';
        return EXIT_REFUSED;
    }
    return EXIT_OK;
}

void add_host_option(CLI::App& command, host_request& request,
                     const std::vector<std::string>& hosts, const std::string& help) {
    command.add_option("--host", request.host, help)
        ->type_name(word_list(hosts))
        ->check(one_of(hosts));
    CLI::Option* log =
        command.add_option("--log", request.log_file, "File for the recorder's calls, a line each");
    log->type_name("FILE");
    command.add_flag("--full-log", request.full_log, "Every number and every call in it")
        ->needs(log);
}

}  // namespace

void add_host_options(CLI::App& command, host_request& request, const std::string& driven) {
    add_host_option(command, request, {PROGRAMS_OF_THIS_MACHINE, RECORDER},
                    "com: drive the " + driven +
                        " that is installed (the default); recorder: none, its\n"
                        "calls are only written down");
}

void add_model_host_options(CLI::App& command, host_request& request) {
    if (automation::system_host() == nullptr) {
        request.host = BUILT_IN_MODELLER;
    }
    add_host_option(command, request, {BUILT_IN_MODELLER, PROGRAMS_OF_THIS_MACHINE, RECORDER},
                    "com: drive the package that is installed; builtin: build the same solids\n"
                    "without it; recorder: its calls are only written down. Default: " +
                        request.host);
}

std::string host_options_problem(const host_request& request) {
    return request.log_file.empty() || request.host == RECORDER ? "" : "needs --host recorder";
}

int drive(const host_request& request, const std::function<bool(automation::host&)>& work,
          std::int16_t language, std::ostream& err) {
    if (request.host == RECORDER) {
        automation::recorder_host programs;
        const int status = status_of(work(programs));
        const int log_status =
            request.log_file.empty() ? EXIT_OK : write_log(programs, request, language, err);
        return std::max(status, log_status);
    }
    const std::unique_ptr<automation::host> programs = automation::system_host();
    automation::no_host none;
    return status_of(work(programs != nullptr ? *programs : none));
}

}  // namespace kvt
