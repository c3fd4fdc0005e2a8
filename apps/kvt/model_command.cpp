#include "kvt/model_command.hpp"

#include "app/models/built_in_modeller.hpp"
#include "app/models/solid_models.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "cad/model_outlines.hpp"
#include "core/text_table.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/model_files.hpp"
#include "kvt/option_check.hpp"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <ostream>

namespace kvt {

namespace {

std::vector<std::string> package_codes() {
    std::vector<std::string> codes;
    for (const model_package& package : model_packages()) {
        codes.emplace_back(package.code);
    }
    return codes;
}

std::vector<std::string> model_words() {
    std::vector<std::string> words;
    for (const model_row& row : model_rows()) {
        words.emplace_back(row.word);
    }
    return words;
}

model_kind kind_of(const std::string& word) {
    return std::ranges::find(model_rows(), word, &model_row::word)->kind;
}

calc_stage needed_stage(const model_command_request& request) {
    const bool needs_ports = std::ranges::any_of(
        request.what, [](const std::string& word) { return kind_of(word) == model_kind::porting; });
    return needs_ports ? calc_stage::ports : calc_stage::profiles;
}

/// The models of one run.
class model_run {
  public:
    using builder = std::function<std::optional<std::string>(model_kind)>;

    model_run(program& kavetta, batch_user& person, const model_command_request& request,
              bool has_ports)
        : kavetta_(kavetta),
          person_(person),
          request_(request),
          package_(*model_package_of(request.package)),
          has_ports_(has_ports) {}

    /// Whether every model was built. Nothing is told of a package that can't be driven.
    bool build_all(automation::host& programs, std::ostream& out) {
        return each_model([&](const std::string& word) {
            return build(word, out, [&](model_kind kind) {
                return build_model(kavetta_, person_, programs, package_, kind);
            });
        });
    }

    /// The same by the built-in modeller, with what became of each model: whether every file was
    /// written, too.
    bool build_all(built_in_modeller& modeller, std::ostream& out, std::ostream& err) {
        export_folder folder(path_of_utf8(request_.folder), request_.source.language, out, err);
        const bool all_built = each_model([&](const std::string& word) {
            built_model built;
            const bool is_built = build(word, out, [&](model_kind kind) {
                built = build_in_modeller(kavetta_, person_, modeller, package_, kind);
                return built.failure;
            });
            if (is_built) {
                tell(built.bodies, out);
                write(built.bodies, word, modeller, folder);
            }
            return is_built;
        });
        return all_built && folder.complete();
    }

  private:
    std::string_view text(std::string_view name) const {
        return form_text("kvt", name, request_.source.language);
    }

    bool each_model(const std::function<bool(const std::string&)>& build_one) const {
        bool all_built = true;
        for (const std::string& word : request_.what) {
            if (package_.routine_of(kind_of(word)) != nullptr) {
                all_built = build_one(word) && all_built;
            }
        }
        return all_built;
    }

    bool build(const std::string& word, std::ostream& out, const builder& build_model_of) {
        const bool is_built = build(kind_of(word), build_model_of);
        out << word << ": " << text(is_built ? "model_built" : "model_not_built") << '\n';
        return is_built;
    }

    bool build(model_kind kind, const builder& build_model_of) {
        if (kind == model_kind::porting && !has_ports_) {
            person_.show_message(text("no_ports"));
            return false;
        }
        const std::optional<std::string> failure = build_model_of(kind);
        if (failure && !failure->empty()) {
            person_.show_message(*failure);
        }
        return !failure;
    }

    void tell(const std::vector<model_body>& bodies, std::ostream& out) const {
        for (const model_body& body : bodies) {
            out << "  " << body_line(body, request_.source.language) << '\n';
        }
    }

    void write(const std::vector<model_body>& bodies, const std::string& word,
               built_in_modeller& modeller, export_folder& folder) const {
        if (!request_.folder.empty()) {
            write_model_files(*modeller.store(), bodies, word + "_" + request_.package,
                              request_.formats, request_.source.language, folder);
        }
    }

    program& kavetta_;
    batch_user& person_;
    const model_command_request& request_;
    const model_package& package_;
    bool has_ports_;
};

/// Whether Design Ports left an outline that it did not refuse.
bool has_ports(const program& kavetta, const batch_result& result) {
    return !result.ports_refused &&
           !port_bodies(kavetta.design_params, kavetta.port_params, kavetta.entries).empty();
}

std::vector<std::string> format_words() {
    std::vector<std::string> words;
    for (const solid_file_row& row : SOLID_FILES) {
        words.emplace_back(row.word);
    }
    return words;
}

void add_file_options(CLI::App& command, model_command_request& request) {
    CLI::Option* folder = command.add_option(
        "--out", request.folder, "Folder for the files of the built-in modeller; made if missing");
    folder->type_name("DIR");
    command
        .add_option("--format", request.formats,
                    "Their formats, with commas between them; default: step")
        ->type_name(word_list(format_words(), ","))
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(one_of(format_words()))
        ->needs(folder);
}

/// Whether the folder of the files is there, made now when it was missing.
bool has_folder(const model_command_request& request, std::ostream& err) {
    std::error_code failed;
    std::filesystem::create_directories(path_of_utf8(request.folder), failed);
    if (failed) {
        const run_time_error error(failure::path_not_found, request.folder);
        err << request.folder << ": " << run_time_error_line(error, request.source.language)
            << '\n';
    }
    return !failed;
}

int build_here(const model_command_request& request, model_run& run, std::ostream& out,
               std::ostream& err) {
    if (!request.folder.empty() && !has_folder(request, err)) {
        return EXIT_REFUSED;
    }
    built_in_modeller modeller;
    return run.build_all(modeller, out, err) ? EXIT_OK : EXIT_REFUSED;
}

}  // namespace

void add_model_options(CLI::App& command, model_command_request& request) {
    command.add_option("--package", request.package, "CAD package that builds the models")
        ->type_name(word_list(package_codes()))
        ->check(one_of(package_codes()))
        ->required();
    command.add_option("--what", request.what, "Models to build, with commas between them")
        ->type_name("trochoid,inner,outer,porting,assembly")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(one_of(model_words()))
        ->required();
    request.formats = {format_words().front()};
    add_model_host_options(command, request.host);
    add_file_options(command, request);
}

std::string model_options_problem(const model_command_request& request) {
    return request.folder.empty() || request.host.host == BUILT_IN_MODELLER
               ? ""
               : "needs --host builtin";
}

int build_models(const model_command_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program kavetta;
    const batch_result result =
        calculate_design(kavetta, person, request.source, needed_stage(request));
    person.show_hints(kavetta.hints, request.source.language);
    if (const int status = exit_status(result.end); status != EXIT_OK) {
        return status;
    }
    model_run run(kavetta, person, request, has_ports(kavetta, result));
    if (request.host.host == BUILT_IN_MODELLER) {
        return build_here(request, run, out, err);
    }
    return drive(
        request.host, [&](automation::host& programs) { return run.build_all(programs, out); },
        request.source.language, err);
}

}  // namespace kvt
