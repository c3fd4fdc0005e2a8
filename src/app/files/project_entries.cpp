#include "app/files/project_entries.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/program.hpp"
#include "app/stages/porting_type.hpp"
#include "base/fixed4.hpp"
#include "base/number_text.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "core/capacity_unit.hpp"

#include <array>
#include <string>

namespace kvt {

namespace {

using box = std::string entries::*;

/// The rotor boxes in the order of the file. coarseness is not among them: it is "1" after every
/// load.
constexpr std::array<box, 11> ROTOR_BOXES = {
    &entries::volumereqd, &entries::shaftdiameter, &entries::thick,       &entries::maxdiameter,
    &entries::numlobes,   &entries::clearn,        &entries::minmaterial, &entries::ecc,
    &entries::radinnroot, &entries::radouter,      &entries::fillet};

/// Entries that no project file holds.
bool is_stored(const entry_field& field) {
    return field.name != "Face_area_value" && field.name != "OD_area_value";
}

void assign_rotor_boxes(program& kavetta, const project_record& record) {
    for (const box member : ROTOR_BOXES) {
        kavetta.entries.*member = record.boxes.*member;
    }
    kavetta.entries.coarseness = "1";
    kavetta.labels.capacity = record.capacity;
    kavetta.entries.outer_root = record.boxes.outer_root;
}

void assign_units(program& kavetta, const project_record& record) {
    app_state& state = kavetta.app_state;
    state.capacity_unit = record.capacity_unit;
    set_unit_labels(kavetta, length_unit_of_project(record.units));
    // The selection in the list is one like the user's: it runs the conversion, with factor 1. An
    // unknown code leaves list, caption and required capacity alone.
    select_capacity_unit(kavetta, state.capacity_unit);
}

/// The selection in the list without its conversion: the texts beside it are those of that unit.
void show_units_as_they_were(program& kavetta, const project_record& record) {
    set_unit_labels(kavetta, length_unit_of_project(record.units));
    kavetta.app_state.capacity_unit = record.capacity_unit;
    if (const capacity_unit* unit = find_capacity_unit(record.capacity_unit)) {
        kavetta.labels.unittype = kavetta.labels.units_label = unit->list_text;
    }
}

double number_or_0(const std::string& text) {
    try {
        return number_of_text(commas_to_points(text));
    } catch (const run_time_error&) {
        return 0.0;
    }
}

void assign_cnc_files(app_state& state, const project_record& record) {
    state.cnc_file_troc = record.cnc_file_troc;
    state.cnc_file_inner = record.cnc_file_inner;
    state.cnc_file_xyouter = record.cnc_file_xyouter;
    state.cnc_file_innertooloffset = record.cnc_file_innertooloffset;
    state.cnc_file_outertooloffset = record.cnc_file_outertooloffset;
    state.cnc_file_outer = record.cnc_file_outer;
}

void assign_dimensions(program& kavetta, const project_record& record) {
    kavetta.entries.axial_clear = record.boxes.axial_clear;
    kavetta.entries.radial_clear = record.boxes.radial_clear;
    // Kept: as typed, also in inches, so the first Calculate Profiles finds both unchanged and
    // keeps the root radius; project_commands_test holds it.
    kavetta.design_params.ecc = number_of_text(commas_to_points(record.boxes.ecc));
    kavetta.design_params.radinnroot = number_of_text(commas_to_points(record.boxes.radinnroot));
}

void assign_check_box(program& kavetta, const entry_field& field, const std::string& state) {
    if (state != "0" && state != "1") {
        throw run_time_error(failure::invalid_property_value,
                             std::string(field.name) + " = " + state);
    }
    set_porting_check(kavetta, field.member, state);
}

void assign_port_and_performance_boxes(program& kavetta, const project_record& record) {
    for (const entry_field& field : entry_fields()) {
        if ((field.form != "portdes" && field.form != "Perffrm") || !is_stored(field)) {
            continue;
        }
        if (field.kind == entry_kind::check) {
            assign_check_box(kavetta, field, record.boxes.*field.member);
        } else {
            kavetta.entries.*field.member = record.boxes.*field.member;
        }
    }
}

/// True when the conversion ends in a run-time failure.
template <typename conversion>
bool fails(const conversion& convert) {
    try {
        static_cast<void>(convert());
        return false;
    } catch (const run_time_error&) {
        return true;
    }
}

}  // namespace

std::optional<unopenable_entry> find_unopenable_entry(const program& kavetta) {
    const entries& boxes = kavetta.entries;
    const bool is_converted = find_capacity_unit(kavetta.app_state.capacity_unit) != nullptr;
    if (is_converted && fails([&] { return fixed4::from(val(boxes.volumereqd)); })) {
        return unopenable_entry{"volumereqd", "Label13"};
    }
    if (fails([&] { return number_of_text(commas_to_points(boxes.ecc)); })) {
        return unopenable_entry{"ecc", "Label3"};
    }
    if (fails([&] { return number_of_text(commas_to_points(boxes.radinnroot)); })) {
        return unopenable_entry{"radinnroot", "Label10"};
    }
    return std::nullopt;
}

project_record project_record_of(const program& kavetta, std::string_view path) {
    const app_state& state = kavetta.app_state;
    project_record record;
    record.project_path = path;
    record.project_name = state.project_name;
    record.units = length_unit_of(state).project_text;
    record.boxes = kavetta.entries;
    record.capacity = kavetta.labels.capacity;
    record.capacity_unit = state.capacity_unit;
    record.cnc_file_troc = state.cnc_file_troc;
    record.cnc_file_inner = state.cnc_file_inner;
    record.cnc_file_xyouter = state.cnc_file_xyouter;
    record.cnc_file_innertooloffset = state.cnc_file_innertooloffset;
    record.cnc_file_outertooloffset = state.cnc_file_outertooloffset;
    record.cnc_file_outer = state.cnc_file_outer;
    return record;
}

void assign_project_record(program& kavetta, const project_record& record) {
    assign_cnc_files(kavetta.app_state, record);
    assign_rotor_boxes(kavetta, record);
    assign_units(kavetta, record);
    assign_dimensions(kavetta, record);
    assign_port_and_performance_boxes(kavetta, record);
}

void assign_unsaved_entries(program& kavetta, const project_record& record) {
    assign_cnc_files(kavetta.app_state, record);
    for (const entry_field& field : entry_fields()) {
        const std::string& text = record.boxes.*field.member;
        if (field.kind == entry_kind::check && field.form == "portdes") {
            set_porting_check(kavetta, field.member, text);
        } else if (field.form == "Form1" || field.form == "portdes" || field.form == "Perffrm") {
            kavetta.entries.*field.member = text;
        }
    }
    const bool is_capacity = !fails([&] { return fixed4::from(val(record.capacity)); });
    kavetta.labels.capacity = is_capacity ? record.capacity : "0.0";
    show_units_as_they_were(kavetta, record);
    kavetta.design_params.ecc = number_or_0(record.boxes.ecc);
    kavetta.design_params.radinnroot = number_or_0(record.boxes.radinnroot);
}

void write_entries(const program& kavetta, std::string_view path, disk_write kind) {
    write_file(path_of_utf8(path), write_project(project_record_of(kavetta, path)), kind);
}

}  // namespace kvt
