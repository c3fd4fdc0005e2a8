#include "app/files/cnc_output.hpp"

#include "app/files/file_output.hpp"
#include "app/files/written_results.hpp"
#include "app/program.hpp"
#include "app/stages/porting_type.hpp"
#include "base/checked_math.hpp"
#include "base/fixed_number.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "output/cnc/port_cnc.hpp"
#include "output/cnc/tool_contour.hpp"

#include <array>
#include <cmath>
#include <string_view>

namespace kvt {

namespace {

constexpr std::array<std::string_view, 5> RESOLUTIONS = {"0.01", "0.001", "0.0001", "0.00001",
                                                         "0.000001"};
/// Decimals of the first resolution.
constexpr int FIRST_DIGITS = 2;

/// Files of Form3 that rules name.
constexpr std::string_view INNER_OFFSET = "inner_offset";
constexpr std::string_view INNER_OFFSET_CHECKED = "inner_offset_checked";
constexpr std::string_view INLET_POCKET = "inlet_pocket";
constexpr std::string_view OUTLET_POCKET = "outlet_pocket";
constexpr std::string_view INLET_GCODE = "inlet_gcode";
constexpr std::string_view OUTLET_GCODE = "outlet_gcode";

/// Entries of Form3 that a refusal points at.
constexpr std::string_view RESOLUTION = "machine_res_combo";
constexpr std::string_view TOOL = "toolsize";
constexpr std::string_view GROOVE_TOOL = "groovetooltext";

std::string_view text_of(const program& kavetta, message id) {
    return message_text(id, kavetta.app_state.language);
}

/// English in two lines; the German text holds both in one.
std::string resolution_message(const program& kavetta) {
    std::string text(text_of(kavetta, message::input_machine_resolution));
    if (kavetta.app_state.language != GERMAN) {
        text += "\r" + std::string(text_of(kavetta, message::machine_resolution_movement));
    }
    return text;
}

/// "Max tool size ... is 3mm.", a carriage return, "Select a suitable tool size".
std::string tool_too_great(const program& kavetta, message text, double largest) {
    return std::string(text_of(kavetta, text)) + number_text(largest) + "mm.\r" +
           std::string(text_of(kavetta, message::select_tool_size));
}

/// One press of okbutton, check by check. Each check shows its message and answers false when it
/// fails.
class form_checks {
  public:
    form_checks(program& kavetta, user& person, cnc_form& form)
        : kavetta_(kavetta), person_(person), form_(form) {}

    bool run() {
        if (!has_resolution() || !has_tool_sizes()) {
            return false;
        }
        read_tools();
        return tool_fits_rotor() && tool_fits_port(INLET_POCKET) && tool_fits_port(OUTLET_POCKET) &&
               tool_fits_groove() && set_resolution();
    }

  private:
    bool ticked(std::string_view file) const { return form_.ticked.contains(file); }
    bool mills_groove() const { return ticked(OUTLET_POCKET) && has_metering_groove(kavetta_); }
    bool refuse(std::string_view control, std::string_view text) {
        person_.show_message(text);
        person_.set_focus(control);
        return false;
    }
    /// The entry is emptied and gets the focus.
    bool refuse_entry(std::string& entry, std::string_view control, std::string_view text) {
        person_.show_message(text);
        entry.clear();
        person_.set_focus(control);
        return false;
    }

    bool has_resolution() {
        return !form_.machine_res_combo.empty() || refuse(RESOLUTION, resolution_message(kavetta_));
    }

    bool has_tool_sizes() {
        for (const written_file& file : files_of(file_group::cnc)) {
            if (file.needs_tool && ticked(file.name) && form_.toolsize.empty()) {
                return refuse(TOOL, text_of(kavetta_, message::tool_size_required));
            }
        }
        if (mills_groove() && form_.groovetooltext.empty()) {
            return refuse(GROOVE_TOOL, text_of(kavetta_, message::groove_tool_size_required));
        }
        return true;
    }

    void read_tools() {
        form_.toolsize = commas_to_points(form_.toolsize);
        form_.groovetooltext = commas_to_points(form_.groovetooltext);
        kavetta_.cnc_choices.tool_diameter = val(form_.toolsize);
        kavetta_.cnc_choices.groove_tool_diameter = val(form_.groovetooltext);
        kavetta_.cnc_choices.Opp_Plot = form_.Opp_Plot;
    }

    /// Kept: neither the comparison nor the number of the message is converted to inches;
    /// cnc_output_test holds it.
    bool tool_fits_rotor() {
        const double radouter = kavetta_.design_params.radouter;
        const bool offset = ticked(INNER_OFFSET) || ticked(INNER_OFFSET_CHECKED);
        if (!offset || radouter - kavetta_.cnc_choices.tool_diameter / 2.0 >= 0.0) {
            return true;
        }
        return refuse(TOOL, std::string(text_of(kavetta_, message::tool_too_great_for_rotor)) +
                                number_text(radouter * 2.0) + " " + form_.toolunits);
    }

    bool tool_fits_port(std::string_view file) {
        const double port_radius = kavetta_.port_params.port_radius;
        if (!ticked(file) || kavetta_.cnc_choices.tool_diameter / 2.0 <= port_radius) {
            return true;
        }
        return refuse_entry(
            form_.toolsize, TOOL,
            tool_too_great(kavetta_, message::tool_too_great_for_port_radius, port_radius * 2.0));
    }

    bool tool_fits_groove() {
        const double width = kavetta_.port_params.groove_width_mm;
        if (!mills_groove() || kavetta_.cnc_choices.groove_tool_diameter <= width) {
            return true;
        }
        return refuse_entry(form_.groovetooltext, GROOVE_TOOL,
                            tool_too_great(kavetta_, message::tool_too_great_for_groove, width));
    }

    bool set_resolution() {
        std::int16_t& digits = kavetta_.cnc_choices.cnc_res_digits;
        digits = resolution_digits(form_.machine_res_combo, digits);
        return digits != 0 || refuse(RESOLUTION, resolution_message(kavetta_));
    }

    program& kavetta_;
    user& person_;
    cnc_form& form_;
};

/// The project file carries the path of some of the files.
void remember_path(app_state& state, const written_file& file, const std::string& path) {
    struct remembered {
        std::string_view name;
        std::string app_state::*path;
    };
    static constexpr std::array<remembered, 5> ROWS = {
        {{"inner_xy", &app_state::cnc_file_inner},
         {"inner_offset", &app_state::cnc_file_innertooloffset},
         {"outer_xy", &app_state::cnc_file_xyouter},
         {"outer_offset", &app_state::cnc_file_outertooloffset},
         {"outer_gcode", &app_state::cnc_file_outer}}};
    for (const remembered& row : ROWS) {
        if (row.name == file.name) {
            state.*row.path = path;
        }
    }
}

/// Answers the line about the file; empty when there is none.
std::string ask_and_save(program& kavetta, user& person, const written_file& file) {
    note_refused_groove(kavetta, file);
    if (const std::string note = refused_gcode_note(kavetta, file); !note.empty()) {
        add_hint(kavetta.hints, note, hint_weight::scraps_part);
        return {};
    }
    const std::optional<saved_text> saved = ask_and_save_file(kavetta, person, file);
    if (!saved) {
        return {};
    }
    remember_path(kavetta.app_state, file, saved->path);
    if (const std::string notice = notice_of(kavetta, file); !notice.empty()) {
        person.show_message(notice);
    }
    return saved->outcome;
}

}  // namespace

cnc_form open_cnc_form(const program& kavetta) {
    cnc_form form;
    form.toolunits =
        form_text("Form3", length_unit_of(kavetta.app_state).toolunits, kavetta.app_state.language);
    for (const std::string_view resolution : RESOLUTIONS) {
        std::string item(resolution);
        item[1] = kavetta.decimal_mark;
        form.machine_res_items.push_back(item);
    }
    return form;
}

void note_refused_groove(program& kavetta, const written_file& file) {
    const bool of_outlet = file.group == file_group::cnc && file.needs == file_needs::outlet;
    if (of_outlet && has_metering_groove(kavetta) && !kavetta.port_params.has_groove) {
        add_hint(kavetta.hints, std::string(text_of(kavetta, message::hint_refused_groove)));
    }
}

std::string refused_gcode_note(const program& kavetta, const written_file& file) {
    if (file.name != INLET_GCODE && file.name != OUTLET_GCODE) {
        return "";
    }
    const port_side side = file.name == INLET_GCODE ? port_side::inlet : port_side::outlet;
    const double gap = port_gcode_gap(source_of(kavetta, file), side);
    if (gap <= CONTOUR_TOLERANCE_MM) {
        return "";
    }
    const std::string shown = std::isfinite(gap) ? fixed_number(gap, 3) : "-";
    return std::string(text_of(kavetta, message::hint_gcode_leaves_outline)) + shown;
}

bool mills_groove(const program& kavetta, const written_file& file) {
    return file.name == OUTLET_POCKET && has_metering_groove(kavetta);
}

void tick_cnc_file(const program& kavetta, cnc_form& form, const written_file& file, bool ticked) {
    if (ticked) {
        form.ticked.emplace(file.name);
    } else {
        form.ticked.erase(std::string(file.name));
    }
    if (file.name != OUTLET_POCKET) {
        return;
    }
    if (!ticked) {
        form.groove_entry_shown = false;
        form.groovetooltext.clear();
    } else if (has_metering_groove(kavetta)) {
        form.groove_entry_shown = true;
    }
}

void use_last_cnc_entries(const program& kavetta, cnc_form& form) {
    if (!kavetta.last_cnc_entries) {
        return;
    }
    static_cast<cnc_entries&>(form) = *kavetta.last_cnc_entries;
    form.groove_entry_shown = has_metering_groove(kavetta) && form.ticked.contains(OUTLET_POCKET);
    if (!form.groove_entry_shown) {
        form.groovetooltext.clear();
    }
}

std::int16_t resolution_digits(const std::string& text, std::int16_t last_choice) {
    for (std::size_t i = 0; i < RESOLUTIONS.size(); ++i) {
        if (commas_to_points(text) == RESOLUTIONS[i]) {
            return static_cast<std::int16_t>(FIRST_DIGITS + i);
        }
    }
    return last_choice;
}

bool check_cnc_form(program& kavetta, user& person, cnc_form& form) {
    return form_checks(kavetta, person, form).run();
}

bool write_cnc_files(program& kavetta, user& person, cnc_form& form) {
    if (!has_results(kavetta, person, form.ticked) || !check_cnc_form(kavetta, person, form)) {
        return false;
    }
    kavetta.last_cnc_entries = form;
    std::string outcomes;
    for (const written_file& file : files_of(file_group::cnc)) {
        const std::string outcome =
            form.ticked.contains(file.name) ? ask_and_save(kavetta, person, file) : "";
        outcomes += (outcomes.empty() || outcome.empty() ? "" : "; ") + outcome;
    }
    if (!outcomes.empty()) {
        person.show_status(outcomes);
    }
    person.unload_form("Form3");
    return true;
}

}  // namespace kvt
