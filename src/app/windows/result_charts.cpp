#include "app/windows/result_charts.hpp"

#include "app/files/saved_text.hpp"
#include "app/program.hpp"
#include "app/trial/pinned_design.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "core/form_shower.hpp"
#include "core/progress_shower.hpp"
#include "core/text_table.hpp"
#include "views/charts/pinned_curves.hpp"

#include <array>
#include <cstddef>

namespace kvt {

namespace {

/// In the order of chart_kind.
constexpr std::array FLAGS = {&app_state::chart_open_flow,   &app_state::chart_open_power,
                              &app_state::chart_open_stress, &app_state::chart_open_ripple,
                              &app_state::chart_open_ve,     &app_state::chart_open_mech,
                              &app_state::chart_open_overall};

bool app_state::*flag_of(chart_kind kind) {
    return FLAGS[static_cast<std::size_t>(kind)];
}

float own_or(float stored, float built_in) {
    return stored == 0.0F ? built_in : stored;
}

}  // namespace

void create_charts(const program& kavetta, form_shower& forms) {
    for (const chart_row& chart : chart_rows()) {
        const entry_field* box = find_entry(find_form(chart.form)->opened_by);
        if (is_ticked(kavetta.entries.*box->member)) {
            forms.show_form(chart.form);
        }
    }
}

result_chart load_chart(program& kavetta, chart_kind kind) {
    const app_state& state = kavetta.app_state;
    kavetta.app_state.*flag_of(kind) = true;
    return make_chart(kind, kavetta.perf_results, state.language, length_unit_of(state).system);
}

result_chart beside_pinned(const program& kavetta, const result_chart& loaded,
                           std::int16_t language, unit_system system) {
    const perf_results* pinned = pinned_performance(kavetta);
    if (pinned == nullptr) {
        return loaded;
    }
    return with_pinned_curves(
        loaded, make_chart(loaded.kind, *pinned, language, system),
        std::string(form_text("pinned", "dashed", language)) + kavetta.pinned->name);
}

void unload_chart(program& kavetta, chart_kind kind) {
    kavetta.app_state.*flag_of(kind) = false;
}

bool is_chart_open(const app_state& state, chart_kind kind) {
    return state.*flag_of(kind);
}

window_rectangle chart_place(const program& kavetta, chart_kind kind) {
    const std::string_view form = row_of(kind).form;
    const window_rectangle built_in = find_form(form)->rectangle;
    const window_rectangle stored = kavetta.window_rectangles.of(form).value_or(window_rectangle());
    return {own_or(stored.height, built_in.height), own_or(stored.width, built_in.width),
            own_or(stored.top, built_in.top), own_or(stored.left, built_in.left)};
}

void save_chart_picture(const program& kavetta, progress_shower& status, const result_chart& chart,
                        std::string_view picture) {
    const std::string name = kavetta.app_state.project_name + chart.file_ending;
    if (name.find_first_of("\\/:*?\"<>|") != std::string::npos) {
        throw run_time_error(failure::path_file_access, name);
    }
    const std::filesystem::path file = kavetta.folder / "images" / path_of_utf8(name);
    write_file(file, picture);
    status.show_status(
        std::string(message_text(message::file_written, kavetta.app_state.language)) +
        utf8_of_path(file));
}

file_dialog chart_export_dialog(const program& kavetta, const result_chart& chart) {
    const app_state& state = kavetta.app_state;
    file_dialog dialog =
        save_text_dialog(form_text("graphpopupmenu", "title", state.language),
                         form_text("graphpopupmenu", "filter", state.language), "");
    dialog.filter_index = 1;
    dialog.file_name = state.project_name + " - " + chart.window_caption;
    return dialog;
}

}  // namespace kvt
