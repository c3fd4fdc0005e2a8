#include "kvt/export_options.hpp"

#include "app/files/cnc_output.hpp"
#include "app/files/dxf_output.hpp"
#include "app/files/step_output.hpp"
#include "base/number_text.hpp"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <chrono>

namespace kvt {

namespace {

/// A check that adds nothing to the help text: the option's own words name the values.
CLI::Validator check_of(std::string (*problem)(const std::string& text)) {
    return CLI::Validator([problem](std::string& text) { return problem(text); }, "");
}

// Each check answers what is wrong with a text, or nothing.

std::string cnc_name_problem(const std::string& name) {
    return name == "all" || find_cnc_file(name) != nullptr ? "" : "'" + name + "' is no CNC file";
}

std::string diameter_problem(const std::string& text) {
    try {
        return number_of_text(commas_to_points(text)) > 0.0 ? "" : "'" + text + "' is no diameter";
    } catch (const run_time_error&) {
        return "'" + text + "' is no diameter";
    }
}

std::string resolution_problem(const std::string& text) {
    return resolution_digits(text, 0) != 0
               ? ""
               : "'" + text + "' is not 0.01, 0.001, 0.0001, 0.00001 or 0.000001";
}

/// Four digits, two, two; a day of the calendar.
std::string date_problem(const std::string& text) {
    int year = 0;
    int month = 0;
    int day = 0;
    const auto read = [&](std::size_t at, std::size_t length, int& number) {
        return std::from_chars(text.data() + at, text.data() + at + length, number).ptr ==
               text.data() + at + length;
    };
    const bool has_form = text.size() == 10 && text[4] == '-' && text[7] == '-' &&
                          read(0, 4, year) && read(5, 2, month) && read(8, 2, day);
    const std::chrono::year_month_day date{std::chrono::year(year),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    return has_form && date.ok() ? "" : "'" + text + "' is no date YYYY-MM-DD";
}

void add_cnc_options(CLI::App& command, export_request& files) {
    command
        .add_option("--cnc", files.cnc,
                    "CNC files to write, separated by commas: inner_xy, inner_offset, "
                    "inner_offset_checked,\n"
                    "inner_lathe, outer_xy, outer_offset, outer_gcode, outer_lathe, inlet_xy, "
                    "inlet_pocket,\n"
                    "inlet_gcode, outlet_xy, outlet_pocket, outlet_gcode, or all")
        ->type_name("TYPE,...")
        ->delimiter(',')
        ->check(check_of(cnc_name_problem));
    command
        .add_option("--resolution", files.resolution,
                    "Smallest movement of the CNC machine; default: 0.0001")
        ->type_name("R")
        ->check(check_of(resolution_problem));
    command
        .add_option(
            "--tool", files.tool,
            "Diameter of the cutter in the unit of the project; without it the offset and pocket\n"
            "files are left out")
        ->type_name("D")
        ->check(check_of(diameter_problem));
    command
        .add_option("--groove-tool", files.groove_tool,
                    "Diameter of the cutter for the metering groove; without it the groove's "
                    "pocket is left out")
        ->type_name("D")
        ->check(check_of(diameter_problem));
    command.add_flag("--clockwise", files.clockwise, "X/Y files of the inner rotor run clockwise");
}

std::string dxf_name_problem(const std::string& name) {
    const bool known = std::ranges::find(DXF_FILES, name, dxf_file_name) != std::end(DXF_FILES);
    return name == "all" || known ? "" : "'" + name + "' is no DXF file";
}

std::string step_name_problem(const std::string& name) {
    const bool known = std::ranges::find(STEP_FILES, name, step_file_name) != std::end(STEP_FILES);
    return name == "all" || known ? "" : "'" + name + "' is no STEP file";
}

void add_drawing_options(CLI::App& command, export_request& files) {
    command
        .add_option(
            "--dxf", files.dxf,
            "DXF files to write, separated by commas: inner, outer, inlet, outlet, groove, or all")
        ->type_name("TYPE,...")
        ->delimiter(',')
        ->check(check_of(dxf_name_problem));
    command
        .add_option(
            "--step", files.step,
            "STEP files to write, separated by commas: inner, outer, assembly, ports, or all")
        ->type_name("TYPE,...")
        ->delimiter(',')
        ->check(check_of(step_name_problem));
    command.add_flag("--gt", files.gt, "The STEP files of the simulation exchange, too");
}

}  // namespace

void add_export_options(CLI::App& command, export_request& files) {
    command.add_option("--out", files.folder, "Folder to write to; created when it is missing")
        ->type_name("DIR")
        ->required();
    add_cnc_options(command, files);
    add_drawing_options(command, files);
    command
        .add_option("--date", files.date,
                    "Date that the files carry; default: today's in the form of the locale")
        ->type_name("YYYY-MM-DD")
        ->check(check_of(date_problem));
}

}  // namespace kvt
