#include "app/gt/gt_simulation.hpp"

#include "app/files/file_output.hpp"
#include "app/gt/gt_folders.hpp"
#include "app/gt/gt_installation.hpp"
#include "app/gt/gt_model.hpp"
#include "app/gt/gt_questions.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "gtsuite/conversion_template.hpp"
#include "gtsuite/model_name.hpp"

namespace kvt {

namespace {

namespace fs = std::filesystem;

constexpr const char* TEMPLATE_NAME = "KVT_GT_conv.gem";
constexpr const char* MODEL_NAME = "KVT_GT_conv.gtm";

bool is_there(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error);
}

/// The files of one run.
struct gt_files {
    gt_folders folders;
    conversion converted;  ///< the template and what the converter makes of it
    std::string profile_name;
    std::string gt_model_name;

    fs::path temporary(const char* name) const { return folders.gt_temp_dir / name; }
};

std::string next_model_name(const program& kavetta, const gt_folders& folders) {
    return gt_model_name(kavetta.app_state.project_name, file_names(folders.results));
}

gt_files prepare_files(const program& kavetta, const gt_request& request) {
    gt_files files;
    files.folders = gt_folders_of(request.folder);
    prepare_gt_folders(files.folders);
    files.gt_model_name = next_model_name(kavetta, files.folders);
    files.profile_name = kavetta.app_state.project_name + ".txt";
    files.converted = {files.temporary(TEMPLATE_NAME), files.temporary(MODEL_NAME),
                       named_file(files.folders.gt_temp_dir, files.profile_name),
                       request.gt_version};
    return files;
}

/// The template beside the STEP files, with the version and the project's name.
void write_template(const program& kavetta, const gt_request& request, const gt_files& files) {
    copy_over(request.conversion_template, files.converted.source);
    model_text text = read_model_text(read_file(files.converted.source));
    prepare_conversion(text, request.gt_version, kavetta.app_state.project_name);
    const fs::path changed = files.temporary("KVT_GT_conv_temp.gem");
    write_file(changed, model_bytes(text), disk_write::left_to_the_system);
    copy_over(changed, files.converted.source);
    remove_file(changed);
}

void convert(program& kavetta, user& person, const gt_request& request, const gt_files& files) {
    kavetta.gt_choices.tim_gemc_enabled = false;
    if (!run_conversion(person, files.converted, request.limits) ||
        !is_there(files.converted.profile)) {
        throw run_time_error(failure::file_not_found, utf8_of_path(files.converted.profile));
    }
}

gt_result change_model(const program& kavetta, const gt_request& request, const gt_files& files) {
    const pump_values pump =
        model_values(kavetta, {request.fluid, files.converted.profile, request.bearing_length_mm,
                               request.bearing_clearance_um});
    gt_result made;
    made.passes =
        change_model_file(files.converted.model, files.temporary("KVT_GT_conv_temp.gtm"), pump);
    made.model = named_file(files.folders.results, files.gt_model_name);
    copy_over(files.converted.model, made.model);
    copy_over(files.converted.profile, named_file(files.folders.results, files.profile_name));
    return made;
}

void open_model(user& person, const gt_request& request, const fs::path& model) {
    person.start_detached({find_gt_tool(gt_tool::editor),
                           {"-v" + std::to_string(request.gt_version), utf8_of_path(model)},
                           gt_tools_folder()});
}

/// The steps in the order in which progressfrm tells them.
gt_result make_model(program& kavetta, user& person, const gt_request& request) {
    const std::int16_t language = kavetta.app_state.language;
    const auto tell = [&](message step, int percent) {
        person.show_titled_progress(message_text(step, language), percent);
    };
    const gt_files files = prepare_files(kavetta, request);
    tell(message::gt_writing_step_files, 10);
    write_gt_step_files(kavetta, utf8_of_path(files.folders.gt_temp_dir));
    write_template(kavetta, request, files);
    tell(message::gt_converting, 25);
    convert(kavetta, person, request, files);
    tell(message::gt_building_model, 75);
    gt_result made = change_model(kavetta, request, files);
    if (request.opens_model) {
        tell(message::gt_opening_model, 100);
        open_model(person, request, made.model);
    }
    empty_folder(files.folders.gt_temp_dir);
    person.unload_form("progressfrm");
    return made;
}

/// The questions; then nothing of the run is left.
void end_failed_run(const program& kavetta, user& person, const gt_request& request) {
    ask_why_conversion_failed(person, kavetta.app_state.language);
    try {
        empty_folder(gt_folders_of(request.folder).gt_temp_dir);
    } catch (const run_time_error&) {
        // A folder that can't be emptied may be why the run failed; the questions have told it.
    }
    person.unload_form("progressfrm");
}

bool is_chosen(bool chosen, message otherwise, const program& kavetta, teller& person) {
    if (!chosen) {
        person.show_message(message_text(otherwise, kavetta.app_state.language));
    }
    return chosen;
}

void write_port_file(const program& kavetta, const char* name) {
    const gt_folders folders = gt_folders_of(kavetta.folder);
    make_gt_folders(folders);
    write_gt_step_file(kavetta, *find_file(file_group::gt, name),
                       utf8_of_path(folders.gt_temp_dir));
}

}  // namespace

gt_request gt_request_of(const program& kavetta) {
    gt_request request;
    request.folder = kavetta.folder;
    request.conversion_template = kavetta.folder / TEMPLATE_NAME;
    request.gt_version = kavetta.gt_choices.gt_version;
    request.fluid = kavetta.gt_choices.fluid();
    return request;
}

std::optional<gt_result> simulate_in_gt(program& kavetta, user& person, const gt_request& request) {
    if (!is_chosen(request.gt_version != 0, message::gt_select_version, kavetta, person) ||
        !is_chosen(!request.fluid.empty(), message::gt_select_fluid, kavetta, person)) {
        return std::nullopt;
    }
    try {
        return make_model(kavetta, person, request);
    } catch (const run_time_error&) {
        end_failed_run(kavetta, person, request);
        return std::nullopt;
    }
}

void look_for_converted_model(program& kavetta, user& person) {
    const gt_folders folders = gt_folders_of(kavetta.folder);
    if (!is_there(folders.gt_temp_dir / MODEL_NAME)) {
        return;
    }
    kavetta.gt_choices.tim_gemc_enabled = false;
    const std::string name = next_model_name(kavetta, folders);
    const std::int16_t language = kavetta.app_state.language;
    person.show_message(std::string(message_text(message::gt_opening, language)) + name +
                        std::string(message_text(message::gt_opening_end, language)));
    person.start_detached({find_gt_tool(gt_tool::editor),
                           {utf8_of_path(named_file(folders.results, name))},
                           gt_tools_folder()});
}

void write_gt_inlet_file(program& kavetta, user&) {
    write_port_file(kavetta, "in_port_GT");
}

void write_gt_outlet_file(program& kavetta, user&) {
    write_port_file(kavetta, "out_port_GT");
}

}  // namespace kvt
