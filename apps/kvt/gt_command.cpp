#include "kvt/gt_command.hpp"

#include "app/desk/start_up.hpp"
#include "app/gt/gt_fluids.hpp"
#include "app/gt/gt_installation.hpp"
#include "app/gt/gt_model.hpp"
#include "app/gt/gt_simulation.hpp"
#include "app/program.hpp"
#include "base/environment.hpp"
#include "base/path_text.hpp"
#include "core/text_table.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/option_check.hpp"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>

namespace kvt {

namespace {

namespace fs = std::filesystem;

/// The delivered files: in the program's folder, else beside the installed program, else where the
/// build has gathered them.
fs::path delivered_file(const char* name) {
    std::error_code error;
    const fs::path beside = running_program().parent_path();
    for (const fs::path& folder : {program_folder(), beside / KVT_INSTALLED_SHARE_FOLDER}) {
        if (fs::is_regular_file(folder / name, error)) {
            return folder / name;
        }
    }
    return path_of_utf8(KVT_SHARE_FOLDER) / name;
}

void print(std::ostream& out, const gt_result& made) {
    int number = 0;
    for (const pass_count& pass : made.passes) {
        out << "pass " << ++number << ": " << pass.objects << " objects, " << pass.lines
            << " lines\n";
    }
    out << utf8_of_path(made.model) << '\n';
}

/// The passes alone, on files that a converter has left.
std::optional<gt_result> change_given_model(const program& kavetta, batch_user& person,
                                            const gt_command_request& request) {
    try {
        const pump_values pump =
            model_values(kavetta, {request.fluid, path_of_utf8(request.txt_file),
                                   request.bearing_length_mm, request.bearing_clearance_um});
        const fs::path out = path_of_utf8(request.out_file);
        return gt_result{out, write_changed_model(path_of_utf8(request.gtm_file), out, pump)};
    } catch (const run_time_error& error) {
        person.show_status(error.detail() + ": " +
                           run_time_error_line(error, request.source.language));
        return std::nullopt;
    }
}

/// A fluid that the library doesn't have is told; the list says which there are.
bool has_fluid(const program& kavetta, batch_user& person, const std::string& fluid) {
    const std::vector<std::string>& fluids = kavetta.gt_choices.fluids;
    if (fluid.empty() || std::ranges::find(fluids, fluid) != fluids.end()) {
        return true;
    }
    std::string line(form_text("kvt", "unknown_fluid", kavetta.app_state.language));
    for (const std::string& known : fluids) {
        line += " " + known;
    }
    person.show_status(line);
    return false;
}

std::optional<gt_result> make_model_of_package(program& kavetta, batch_user& person,
                                               const gt_command_request& request) {
    select_gt_version(kavetta, person, "GT " + std::to_string(request.year));
    if (!person.messages().empty() || !has_fluid(kavetta, person, request.fluid)) {
        return std::nullopt;
    }
    gt_request simulated;
    simulated.folder = program_folder();
    simulated.conversion_template = delivered_file("KVT_GT_conv.gem");
    simulated.gt_version = request.year;
    simulated.fluid = request.fluid;
    simulated.opens_model = request.opens;
    simulated.bearing_length_mm = request.bearing_length_mm;
    simulated.bearing_clearance_um = request.bearing_clearance_um;
    return simulate_in_gt(kavetta, person, simulated);
}

void add_given_files(CLI::App& command, gt_command_request& request) {
    CLI::Option* gtm = command.add_option(
        "--gtm", request.gtm_file, "Change this model file of a converter, without the package");
    CLI::Option* txt =
        command.add_option("--txt", request.txt_file, "Its chamber profile")->type_name("FILE");
    CLI::Option* out =
        command.add_option("--out", request.out_file, "The changed model")->type_name("FILE.gtm");
    gtm->type_name("FILE")->needs(txt)->needs(out);
    txt->needs(gtm);
    out->needs(gtm);
}

}  // namespace

void add_gt_options(CLI::App& command, gt_command_request& request) {
    command.add_option("--year", request.year, "Version of GT-SUITE: 2018, 2019, 2020 or 2021")
        ->type_name("YEAR")
        ->check(number_of(FIRST_GT_VERSION, LAST_GT_VERSION));
    command.add_option("--fluid", request.fluid, "Fluid of its library")->type_name("NAME");
    command.add_flag("--open", request.opens, "Open the model in GT-SUITE");
    command
        .add_option("--bearing-length", request.bearing_length_mm,
                    "Length of the shaft bearing; default: the shaft's diameter")
        ->type_name("MM")
        ->check(plain(CLI::PositiveNumber));
    command
        .add_option("--bearing-clearance", request.bearing_clearance_um,
                    "Clearance of the shaft bearing; default: 0.001 of the shaft's diameter")
        ->type_name("MICROMETRES")
        ->check(plain(CLI::PositiveNumber));
    add_given_files(command, request);
}

int make_gt_model(const gt_command_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program kavetta;
    const batch_result result =
        calculate_design(kavetta, person, request.source, calc_stage::performance);
    person.show_hints(kavetta.hints, request.source.language);
    if (const int status = exit_status(result); status != EXIT_OK) {
        return status;
    }
    const std::optional<gt_result> made = request.gtm_file.empty()
                                              ? make_model_of_package(kavetta, person, request)
                                              : change_given_model(kavetta, person, request);
    if (!made) {
        return EXIT_REFUSED;
    }
    print(out, *made);
    return EXIT_OK;
}

}  // namespace kvt
