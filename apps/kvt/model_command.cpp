#include "kvt/model_command.hpp"

#include "app/models/solid_models.hpp"
#include "app/program.hpp"
#include "cad/model_outlines.hpp"
#include "core/text_table.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/option_check.hpp"

#include <CLI/CLI.hpp>
#include <algorithm>
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

/// "acad|invent|.."
std::string list_of(const std::vector<std::string>& words) {
    std::string list;
    for (const std::string& word : words) {
        list += (list.empty() ? "" : "|") + word;
    }
    return list;
}

model_kind kind_of(const std::string& word) {
    return std::ranges::find(model_rows(), word, &model_row::word)->kind;
}

calc_stage needed_stage(const model_command_request& request) {
    const bool needs_ports = std::ranges::any_of(
        request.what, [](const std::string& word) { return kind_of(word) == model_kind::porting; });
    return needs_ports ? calc_stage::ports : calc_stage::profiles;
}

/// The models of one run, all through one host.
class model_run {
  public:
    model_run(program& kavetta, batch_user& person, const model_command_request& request,
              bool has_ports)
        : kavetta_(kavetta),
          person_(person),
          request_(request),
          package_(*model_package_of(request.package)),
          has_ports_(has_ports) {}

    /// Whether every model was built. Nothing is told of a package that can't be driven.
    bool build_all(automation::host& programs, std::ostream& out) {
        bool all_built = true;
        for (const std::string& word : request_.what) {
            const model_kind kind = kind_of(word);
            if (package_.routine_of(kind) != nullptr) {
                const bool is_built = build(programs, kind);
                out << word << ": " << text(is_built ? "model_built" : "model_not_built") << '\n';
                all_built = all_built && is_built;
            }
        }
        return all_built;
    }

  private:
    std::string_view text(std::string_view name) const {
        return form_text("kvt", name, request_.source.language);
    }

    bool build(automation::host& programs, model_kind kind) {
        if (kind == model_kind::porting && !has_ports_) {
            person_.show_message(text("no_ports"));
            return false;
        }
        const std::optional<std::string> failure =
            build_model(kavetta_, person_, programs, package_, kind);
        if (failure && !failure->empty()) {
            person_.show_message(*failure);
        }
        return !failure;
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

}  // namespace

void add_model_options(CLI::App& command, model_command_request& request) {
    command.add_option("--package", request.package, "CAD package that builds the models")
        ->type_name(list_of(package_codes()))
        ->check(plain(CLI::IsMember(package_codes())))
        ->required();
    command.add_option("--what", request.what, "Models to build, with commas between them")
        ->type_name("trochoid,inner,outer,porting,assembly")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(plain(CLI::IsMember(model_words())))
        ->required();
    add_host_options(command, request.host, "package");
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
    return drive(
        request.host, [&](automation::host& programs) { return run.build_all(programs, out); },
        request.source.language, err);
}

}  // namespace kvt
