#include "python/held_design.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/export/export_files.hpp"
#include "app/export/export_folder.hpp"
#include "app/export/export_performance.hpp"
#include "app/export/given_date.hpp"
#include "app/export/report_file.hpp"
#include "app/files/file_output.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/project_entries.hpp"
#include "app/stages/near_names.hpp"
#include "app/stages/silent_user.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "output/data/workbook_file.hpp"
#include "python/script_failure.hpp"

#include <algorithm>
#include <functional>
#include <sstream>

namespace kvt {

namespace {

std::string joined_lines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += (text.empty() ? "" : "\n") + line;
    }
    std::ranges::replace(text, '\r', '\n');
    return text;
}

void append(std::vector<std::string>& messages, const std::vector<std::string>& more) {
    messages.insert(messages.end(), more.begin(), more.end());
}

program program_in(std::int16_t language) {
    program kavetta;
    kavetta.app_state.language = language;
    set_captions(kavetta);
    return kavetta;
}

/// A run-time failure of a step is heard of as the failure of a file.
void on_file(const std::string& path, std::int16_t language, const std::function<void()>& step) {
    try {
        step();
    } catch (const run_time_error& error) {
        throw script_failure(script_error::file_failure,
                             path + ": " + run_time_error_line(error, language));
    }
}

void check_known(const std::string& control) {
    const std::vector<std::string> names = entry_names();
    if (std::ranges::find(names, control) != names.end()) {
        return;
    }
    std::vector<std::string> near;
    for (const std::string_view name : near_names(control, {names.begin(), names.end()})) {
        near.emplace_back(name);
    }
    throw script_failure(script_error::unknown_entry, typed_entry_problem({control, {}}), near);
}

void check_typed(const typed_entry& typed) {
    check_known(typed.control);
    const std::string problem = typed_entry_problem(typed);
    if (!problem.empty()) {
        throw script_failure(script_error::entry_refused, problem);
    }
}

/// Throws what a person would hear of a run that was refused or failed.
void check_run(const batch_result& run, const std::vector<std::string>& messages) {
    if (run.is_accepted()) {
        return;
    }
    const bool failed = run.end == batch_end::fatal;
    const std::string told =
        messages.empty() ? std::string(batch_end_name(run.end)) : joined_lines(messages);
    throw script_failure(failed ? script_error::run_time_failure : script_error::design_refused,
                         told, messages);
}

/// The state of what is chosen by a click and has no box.
std::string chosen_text(const program& kavetta, const std::string& name) {
    if (name == "unittype") {
        return kavetta.labels.unittype;
    }
    const bool is_millimetres = kavetta.app_state.drawing_units == MILLIMETRES;
    return (name == "dimens1") == is_millimetres ? "1" : "0";
}

program prepared_for(const export_request& request, const program& records) {
    program kavetta = records;
    kavetta.date = request.date;
    kavetta.decimal_mark = request.decimal_mark;
    kavetta.chord_error_mm = request.chord_error_mm;
    return kavetta;
}

std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace

std::vector<std::string> entry_names() {
    std::vector<std::string> names;
    for (const typed_control& control : typed_controls()) {
        names.emplace_back(control.name);
    }
    return names;
}

std::shared_ptr<held_design> held_design::make_new(const std::string& name, std::int16_t language) {
    const std::shared_ptr<held_design> design(new held_design);
    program& kavetta = design->state_.opened = program_in(language);
    kavetta.app_state.new_pressed = true;  // nothing stands there that could be kept
    kavetta.labels.hiddenprojnamelabel = name;
    silent_user person;
    new_project(kavetta, person);
    return design;
}

std::shared_ptr<held_design> held_design::open(const std::string& path, std::int16_t language) {
    const std::shared_ptr<held_design> design(new held_design);
    design->state_.opened = program_in(language);
    silent_user person;
    on_file(path, language, [&] { load_project(design->state_.opened, person, path); });
    design->state_.messages = person.messages();
    return design;
}

std::shared_ptr<held_design> held_design::of_text(const std::string& bytes, std::int16_t language) {
    const std::shared_ptr<held_design> design(new held_design);
    program& kavetta = design->state_.opened = program_in(language);
    silent_user person;
    on_file("project", language, [&] {
        const project_record record = read_unsaved(bytes).project;
        kavetta.app_state.project_name = record.project_name;
        kavetta.app_state.project_path = record.project_path;
        assign_unsaved_entries(kavetta, record);
        reset_results(kavetta, person);
    });
    return design;
}

std::shared_ptr<held_design> held_design::copy() const {
    const std::shared_ptr<held_design> other(new held_design);
    const std::scoped_lock lock(mutex_);
    other->state_ = state_;
    return other;
}

std::string held_design::entry(const std::string& name) const {
    check_known(name);
    const entry_field* field = find_entry(name);
    const std::scoped_lock lock(mutex_);
    return field == nullptr ? chosen_text(state_.opened, name)
                            : state_.opened.entries.*field->member;
}

void held_design::type(const std::string& name, const std::string& text) {
    const typed_entry typed{name, text};
    check_typed(typed);
    const std::scoped_lock lock(mutex_);
    program changed = state_.opened;
    silent_user person;
    try {
        type_entry(changed, person, typed);
    } catch (const run_time_error& error) {
        throw script_failure(script_error::entry_refused,
                             name + ": " + run_time_error_line(error, changed.app_state.language));
    }
    state_.opened = std::move(changed);
    state_.finished.reset();
    append(state_.messages, person.messages());
    if (!person.messages().empty()) {
        throw script_failure(script_error::entry_refused, joined_lines(person.messages()));
    }
}

std::int16_t held_design::language() const {
    const std::scoped_lock lock(mutex_);
    return state_.opened.app_state.language;
}

void held_design::choose_language(std::int16_t language) {
    const std::scoped_lock lock(mutex_);
    silent_user person;
    kvt::choose_language(state_.opened, person, language);
    state_.finished.reset();
}

std::string held_design::name() const {
    const std::scoped_lock lock(mutex_);
    return state_.opened.app_state.project_name;
}

std::string held_design::path() const {
    const std::scoped_lock lock(mutex_);
    return state_.opened.app_state.project_path;
}

std::string held_design::project_text() const {
    const std::scoped_lock lock(mutex_);
    const app_state& state = state_.opened.app_state;
    std::string bytes;
    on_file("project", state.language, [&] {
        bytes = write_unsaved({project_record_of(state_.opened, state.project_path), {}});
    });
    return bytes;
}

program held_design::opened() const {
    const std::scoped_lock lock(mutex_);
    return state_.opened;
}

std::shared_ptr<const held_results> held_design::calculate(calc_stage last) {
    const std::scoped_lock lock(mutex_);
    auto done = std::make_shared<held_results>();
    done->records = state_.opened;
    silent_user person;
    done->run = calculate_open_design(done->records, person, last);
    done->messages = state_.messages;
    append(done->messages, person.messages());
    state_.finished = done;
    check_run(done->run, person.messages());
    return done;
}

std::shared_ptr<const held_results> held_design::finished() const {
    const std::scoped_lock lock(mutex_);
    return state_.finished;
}

std::vector<std::string> held_design::messages() const {
    const std::scoped_lock lock(mutex_);
    return state_.finished == nullptr ? state_.messages : state_.finished->messages;
}

std::shared_ptr<const held_results> held_design::finished_or_throw() const {
    std::shared_ptr<const held_results> done = finished();
    if (done == nullptr) {
        throw script_failure(script_error::not_calculated,
                             "calculate() has not run since the entries were typed");
    }
    return done;
}

void held_design::write_project_file(const std::string& path) const {
    const std::scoped_lock lock(mutex_);
    on_file(path, state_.opened.app_state.language,
            [&] { write_entries(state_.opened, path, disk_write::left_to_the_system); });
}

void held_design::write_report(const std::string& path, const std::string& date) const {
    const auto done = finished_or_throw();
    program records = done->records;
    records.date = day_of(date);
    on_file(path, records.app_state.language, [&] { write_report_file(records, path, date); });
}

script_files held_design::write_files(const export_request& request) const {
    const auto done = finished_or_throw();
    if (!done->run.ports_reached) {
        throw script_failure(script_error::not_calculated, "the ports are not designed");
    }
    program kavetta = prepared_for(request, done->records);
    const std::int16_t language = kavetta.app_state.language;
    std::ostringstream out, err;
    export_folder folder(request.folder, language, out, err);
    silent_user person;
    on_file(utf8_of_path(request.folder), language, [&] { create_folder(request.folder); });
    export_files(kavetta, person, request, folder);
    export_performance(kavetta, request, folder);
    script_files files{folder.written(), lines_of(err.str())};
    append(files.notes, person.messages());
    if (!folder.complete()) {
        throw script_failure(script_error::file_failure, joined_lines(files.notes), files.notes);
    }
    return files;
}

void held_design::write_workbook(const std::string& path) const {
    const auto done = finished_or_throw();
    if (!done->records.stage_entries.perf_results.has_value()) {
        throw script_failure(script_error::not_calculated, "the performance is not calculated");
    }
    on_file(path, done->records.app_state.language, [&] {
        write_file(path_of_utf8(path), workbook_bytes(make_workbook_plan(source_of(done->records))),
                   disk_write::left_to_the_system);
    });
}

}  // namespace kvt
