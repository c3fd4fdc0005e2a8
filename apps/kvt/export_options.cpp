#include "kvt/export_options.hpp"

#include "app/export/given_date.hpp"
#include "base/number_text.hpp"
#include "base/path_text.hpp"
#include "kvt/option_check.hpp"
#include "output/written_files.hpp"

#include <CLI/CLI.hpp>

namespace kvt {

namespace {

void add_cnc_options(CLI::App& command, export_request& files) {
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

/// "inner, outer, inlet", broken into lines.
std::string list_of(std::span<const written_file> files) {
    constexpr std::size_t WIDTH = 90;
    std::string list;
    std::size_t line_start = 0;
    for (const written_file& file : files) {
        list += list.empty() ? "" : ", ";
        if (list.size() + file.name.size() - line_start > WIDTH) {
            list.back() = '\n';
            line_start = list.size();
        }
        list += file.name;
    }
    return list;
}

constexpr const char* ALL_FILES = "all";

std::vector<std::string> words_of_group(file_group group) {
    std::vector<std::string> words;
    for (const written_file& file : files_of(group)) {
        words.emplace_back(file.name);
    }
    words.emplace_back(ALL_FILES);
    return words;
}

void add_names_option(CLI::App& command, const file_group_row& group, export_request& files) {
    const std::string format(group.format);
    command
        .add_option("--" + std::string(group.name), files.chosen[group.group],
                    format + " files to write, separated by commas:\n" +
                        list_of(files_of(group.group)) + ", or all")
        ->type_name("TYPE,...")
        ->delimiter(',')
        ->check(naming(CLI::Validator(
                           [&group, format](const std::string& name) {
                               const bool known =
                                   name == ALL_FILES || find_file(group.group, name) != nullptr;
                               return known ? "" : "'" + name + "' is no " + format + " file";
                           },
                           ""),
                       words_of_group(group.group)));
}

void add_flag(CLI::App& command, const file_group_row& group, export_request& files) {
    command.add_flag_callback(
        "--" + std::string(group.name), [&files, &group] { files.flagged.insert(group.group); },
        "The " + std::string(group.flagged) + ", too");
}

/// The files of each group as the table has them.
void add_file_options(CLI::App& command, export_request& files) {
    for (const file_group_row& group : file_groups()) {
        if (group.choice == file_choice::by_name || group.choice == file_choice::only_by_name) {
            add_names_option(command, group, files);
        } else if (group.choice == file_choice::by_flag) {
            add_flag(command, group, files);
        }
    }
}

void add_chord_error_option(CLI::App& command, export_request& files) {
    command
        .add_option_function<std::string>(
            "--chord-error",
            [&files](const std::string& text) { files.chord_error_mm = number_of_text(text); },
            "How far the triangles of the STL files may lie from the contours, mm; default: 0.005")
        ->type_name("MM")
        ->check(check_of(chord_error_problem));
}

void add_performance_options(CLI::App& command, export_request& files) {
    command.add_flag("--workbook", files.workbook,
                     "The workbook of the performance, perf.xlsx, too");
    command.add_flag_callback(
        "--decimal-comma", [&files] { files.decimal_mark = ','; },
        "Numbers of the performance data files with a comma");
    command.add_flag(
        "--force", files.force,
        "Performance data files and workbook also of a design without performance, with "
        "zeros");
}

}  // namespace

void add_export_options(CLI::App& command, export_request& files) {
    command
        .add_option_function<std::string>(
            "--out", [&files](const std::string& folder) { files.folder = path_of_utf8(folder); },
            "Folder to write to; created when it is missing")
        ->type_name("DIR")
        ->required();
    add_file_options(command, files);
    add_chord_error_option(command, files);
    add_cnc_options(command, files);
    add_performance_options(command, files);
    command
        .add_option("--date", files.date,
                    "Date that the files carry; default: today's in the form of the locale")
        ->type_name("YYYY-MM-DD")
        ->check(check_of(date_problem));
}

}  // namespace kvt
