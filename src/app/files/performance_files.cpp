#include "app/files/performance_files.hpp"

#include "app/files/file_output.hpp"
#include "app/files/saved_text.hpp"
#include "app/files/written_results.hpp"
#include "app/program.hpp"
#include "automation/system_host.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "output/data/workbook_calls.hpp"
#include "output/data/workbook_file.hpp"

namespace kvt {

namespace {

constexpr const char* PROGRESS_FORM = "progressfrm";
/// Of the progress, for each of the five sheets.
constexpr int PERCENT_A_SHEET = 20;

bool may_write_performance(const program& kavetta, user& person) {
    return may_write(kavetta, person, files_of(file_group::data).front());
}

void ask_and_save_all(program& kavetta, user& person) {
    std::string outcomes;
    for (const written_file& file : files_of(file_group::data)) {
        if (const std::optional<saved_text> saved = ask_and_save_file(kavetta, person, file)) {
            outcomes += (outcomes.empty() ? "" : "; ") + saved->outcome;
        }
    }
    if (!outcomes.empty()) {
        person.show_status(outcomes);
    }
}

file_dialog workbook_dialog(const program& kavetta) {
    const std::int16_t language = kavetta.app_state.language;
    file_dialog dialog = save_text_dialog(form_text("data", "workbook_title", language),
                                          form_text("data", "workbook_filter", language), "xlsx");
    dialog.file_name = kavetta.app_state.project_name;
    return dialog;
}

/// Makes the workbook of the plan by a function, to which it gives whom to tell how many sheets are
/// done; the user sees it.
template <typename function>
auto make_workbook(const program& kavetta, user& person, const function& make) {
    const std::string_view writing =
        message_text(message::writing_workbook, kavetta.app_state.language);
    person.show_progress(writing, 0);
    const std::vector<workbook_sheet> plan = make_workbook_plan(source_of(kavetta));
    return make(plan, [&](int sheet_count) {
        person.show_progress(writing, sheet_count * PERCENT_A_SHEET);
    });
}

void offer_data_files(program& kavetta, user& person) {
    if (person.ask(message_text(message::workbook_failed, kavetta.app_state.language),
                   question_buttons::yes_no) == answer::yes) {
        ask_and_save_all(kavetta, person);
    }
}

void save_workbook(program& kavetta, user& person) {
    const std::optional<saved_text> saved = ask_and_save_bytes(
        kavetta, person, workbook_dialog(kavetta),
        [&](const std::string&) { return make_workbook(kavetta, person, workbook_bytes); });
    if (!saved) {
        return;
    }
    person.unload_form(PROGRESS_FORM);
    person.show_status(saved->outcome);
    if (saved->is_whole) {
        person.open_file(saved->path);
    } else {
        offer_data_files(kavetta, person);
    }
}

}  // namespace

void save_performance_files(program& kavetta, user& person) {
    if (may_write_performance(kavetta, person)) {
        ask_and_save_all(kavetta, person);
    }
}

void export_excel(program& kavetta, user& person) {
    export_workbook(kavetta, person, automation::system_host().get());
}

void export_workbook(program& kavetta, user& person, automation::host* programs) {
    if (!may_write_performance(kavetta, person)) {
        return;
    }
    if (programs == nullptr) {
        save_workbook(kavetta, person);
    } else if (!fill_excel(kavetta, person, *programs)) {
        offer_data_files(kavetta, person);
    }
}

bool fill_excel(program& kavetta, user& person, automation::host& programs) {
    try {
        make_workbook(kavetta, person, [&](const auto& plan, const auto& sheet_done) {
            fill_workbook(programs, plan, sheet_done);
        });
    } catch (const run_time_error& error) {
        person.unload_form(PROGRESS_FORM);
        person.show_status(
            std::string(form_text("data", "excel_error", kavetta.app_state.language)) +
            number_text(error.number()));
        return false;
    }
    person.unload_form(PROGRESS_FORM);
    return true;
}

}  // namespace kvt
