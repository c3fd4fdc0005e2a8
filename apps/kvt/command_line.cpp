#include "kvt/command_line.hpp"

#include "app/export/given_date.hpp"
#include "app/export/report_file.hpp"
#include "base/number_text.hpp"
#include "core/capacity_unit.hpp"
#include "kvt/assist_command.hpp"
#include "kvt/calc_command.hpp"
#include "kvt/command_description.hpp"
#include "kvt/excel_command.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/export_command.hpp"
#include "kvt/export_options.hpp"
#include "kvt/gt_command.hpp"
#include "kvt/limits_command.hpp"
#include "kvt/model_command.hpp"
#include "kvt/option_check.hpp"
#include "kvt/printed_status.hpp"
#include "kvt/report_command.hpp"
#include "kvt/stage_words.hpp"
#include "kvt/study_options.hpp"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <new>
#include <ostream>
#include <string>
#include <vector>

namespace kvt {

namespace {

constexpr const char* NAME = "kvt";
constexpr const char* VERSION = KVT_VERSION;

constexpr const char* ABOUT =
    "kvt calculates gerotor pump designs from project files (.KVT) without a window,\n"
    "as the desktop program does with Open, Calculate Profiles, Design Ports and\n"
    "Calculate Performance.";

constexpr const char* EXAMPLES =
    "  kvt calc engine_oil.KVT\n"
    "  kvt calc engine_oil.KVT --set thick=12 --set fillet=0 --json -\n"
    "  kvt export engine_oil.KVT --out files --set numlobes=8\n"
    "  kvt report engine_oil.KVT --out engine_oil.pdf\n"
    "  kvt assist engine_oil.KVT --set volumereqd=20 --write found.KVT\n"
    "  kvt limits engine_oil.KVT ecc radouter\n"
    "  kvt gt engine_oil.KVT --year 2021 --fluid oil --open\n"
    "  kvt excel engine_oil.KVT\n"
    "  kvt model engine_oil.KVT --package acad --what assembly --host builtin --out models\n"
    "  kvt study engine_oil.KVT --vary ecc=2.7:3:0.05 --vary numlobes=5,6,7 --out study.csv\n"
    "  kvt search engine_oil.KVT --vary ecc=2:3 --vary thick=8:16 --target capacity=7.5 --minimize "
    "ripple";

constexpr const char* EXIT_STATUSES =
    "0 ended ok, 1 the design was refused or failed or a file or standard\n"
    "output could not be written, 2 usage, 3 the project file could not be read or there\n"
    "is no memory. Messages go to standard error.";

/// What the options say, as they are read.
struct command_line {
    calc_request calc;
    std::vector<std::string> typed;  ///< the --set options as given
    std::string stage = "performance";
    export_request files;         ///< its source is that of calc
    report_request report;        ///< its source and last stage are those of calc
    assist_request assist;        ///< its source is that of calc
    limits_request limits;        ///< its source and last stage are those of calc
    gt_command_request gt;        ///< its source is that of calc
    model_command_request model;  ///< its source is that of calc
    excel_request excel;          ///< its source is that of calc
    study_request study;          ///< its source and last stage are those of calc
    search_request search;        ///< its source and last stage are those of calc
};

std::vector<std::string> stage_words() {
    std::vector<std::string> words;
    for (const stage_row& row : STAGE_ROWS) {
        words.emplace_back(row.word);
    }
    return words;
}

calc_stage stage_of(const std::string& word) {
    return std::ranges::find(STAGE_ROWS, word, &stage_row::word)->stage;
}

/// "CONTROL=TEXT"; the text may hold further "=". Throws CLI::ValidationError for what can't be
/// typed.
typed_entry parse_typed(const std::string& option) {
    const std::size_t equals = option.find('=');
    if (equals == std::string::npos) {
        throw CLI::ValidationError("--set", "'" + option + "' is not CONTROL=TEXT");
    }
    const typed_entry typed{option.substr(0, equals), option.substr(equals + 1)};
    const std::string problem = typed_entry_problem(typed);
    if (!problem.empty()) {
        throw CLI::ValidationError("--set", problem);
    }
    return typed;
}

/// "1 Lit/Min/1000rpm, 2 USGall/Min/1000rpm, ...", in lines of the help's width.
std::string capacity_unit_list() {
    std::string list;
    int code = 0;
    for (const capacity_unit& unit : capacity_units()) {
        ++code;
        list += code == 1 ? "" : code % 3 == 0 ? ",\n" : ", ";
        list += number_text(code) + " " + std::string(unit.list_text);
    }
    return list;
}

/// What is done with a project once it is open.
void add_typing_options(CLI::App& command, command_line& line) {
    design_source& source = line.calc.source;
    command
        .add_option(
            "--set", line.typed,
            "Type TEXT into a control and leave it, as a user would; check boxes take 0 or 1,\n"
            "dimens1=1 and dimens2=1 choose mm and inches, unittype takes a text of its list.\n"
            "May be given many times")
        ->type_name("CONTROL=TEXT")
        ->allow_extra_args(false);
    command
        .add_option("--capacity-unit", source.capacity_unit,
                    "Select a capacity unit after opening: " + capacity_unit_list())
        ->type_name("N")
        ->check(number_of(1, static_cast<int>(capacity_units().size())));
    command.add_option("--language", source.language, "Language of messages: 1 English, 2 German")
        ->type_name("1|2")
        ->check(number_of(ENGLISH, GERMAN));
}

void add_design_options(CLI::App& command, command_line& line) {
    command.add_option("PROJECT.KVT", line.calc.source.project, "Project file to open")->required();
    add_typing_options(command, line);
}

void add_stage_option(CLI::App& command, command_line& line) {
    command.add_option("--stage", line.stage, "Stop after a stage; default: as far as it goes")
        ->type_name(word_list(stage_words()))
        ->check(one_of(stage_words()));
}

CLI::App* add_calc(CLI::App& app, command_line& line) {
    CLI::App* calc = app.add_subcommand("calc", "Calculate a design and print a summary");
    calc->add_option("PROJECT.KVT", line.calc.projects,
                     "Project file to open; several with --jsonl")
        ->required();
    add_typing_options(*calc, line);
    calc->add_option(
            "--json", line.calc.json_file,
            "Write everything as JSON to a file; with - to standard output, without the summary")
        ->type_name("FILE|-");
    calc->add_flag(
        "--jsonl", line.calc.json_lines,
        "Calculate many projects on all processors: a line of JSON each, in their order");
    add_jobs_option(*calc, line.calc.jobs);
    calc->add_flag("--full", line.calc.full,
                   "JSON with all profile points and the lines of the Design view");
    calc->add_flag("--exact", line.calc.exact,
                   "JSON with the exact figures of geometry and textbooks beside the product's");
    add_stage_option(*calc, line);
    return calc;
}

CLI::App* add_report(CLI::App& app, command_line& line) {
    CLI::App* report =
        app.add_subcommand("report", "Calculate a design and write its report for paper");
    add_design_options(*report, line);
    report
        ->add_option("--out", line.report.file,
                     "File to write, as text or as PDF; default: text on standard output")
        ->type_name("FILE.txt|FILE.pdf")
        ->check(check_of(report_file_problem));
    add_stage_option(*report, line);
    report
        ->add_option("--date", line.report.date,
                     "Date and time that the report carries; default: now. Without a time 00:00:00")
        ->type_name("YYYY-MM-DD[THH:MM:SS]")
        ->check(check_of(date_time_problem));
    return report;
}

CLI::App* add_export(CLI::App& app, command_line& line) {
    CLI::App* files = app.add_subcommand("export", "Write the files of a design to a folder");
    add_design_options(*files, line);
    add_export_options(*files, line.files);
    return files;
}

CLI::App* add_assist(CLI::App& app, command_line& line) {
    CLI::App* assist =
        app.add_subcommand("assist", "Find rotor dimensions for the required capacity");
    add_design_options(*assist, line);
    assist->add_flag("--json", line.assist.json, "Print everything as JSON, without the summary");
    assist
        ->add_option("--write", line.assist.write_file,
                     "Save the project with the dimensions found")
        ->type_name("FILE.KVT");
    return assist;
}

CLI::App* add_limits(CLI::App& app, command_line& line) {
    CLI::App* limits =
        app.add_subcommand("limits", "Tell how far entries can go until the design is refused");
    add_design_options(*limits, line);
    limits
        ->add_option("ENTRY", line.limits.entries,
                     "Entries as --set names them; default: every entry that has limits")
        ->check(check_of(limited_entry_problem));
    limits->add_flag("--json", line.limits.json, "Print the limits as JSON");
    add_stage_option(*limits, line);
    return limits;
}

CLI::App* add_gt(CLI::App& app, command_line& line) {
    CLI::App* gt = app.add_subcommand("gt", "Make the model of a design for GT-SUITE");
    add_design_options(*gt, line);
    add_gt_options(*gt, line.gt);
    return gt;
}

CLI::App* add_model(CLI::App& app, command_line& line) {
    CLI::App* model = app.add_subcommand(
        "model", "Build the models of a design, in a CAD package or by ourselves");
    add_design_options(*model, line);
    add_model_options(*model, line.model);
    return model;
}

CLI::App* add_excel(CLI::App& app, command_line& line) {
    CLI::App* excel =
        app.add_subcommand("excel", "Fill a workbook in Excel with the performance of a design");
    add_design_options(*excel, line);
    add_host_options(*excel, line.excel.host, "Excel");
    return excel;
}

CLI::App* add_study(CLI::App& app, command_line& line) {
    CLI::App* study =
        app.add_subcommand("study", "Calculate many designs of a project on all processors");
    add_design_options(*study, line);
    add_study_options(*study, line.study);
    add_stage_option(*study, line);
    return study;
}

CLI::App* add_search(CLI::App& app, command_line& line) {
    CLI::App* search =
        app.add_subcommand("search", "Find the designs of a project that no other one beats");
    add_design_options(*search, line);
    add_search_options(*search, line.search);
    add_stage_option(*search, line);
    return search;
}

void refuse(const char* option, const std::string& problem) {
    if (!problem.empty()) {
        throw CLI::ValidationError(option, problem);
    }
}

/// Throws CLI::ValidationError for options that don't go together.
void check_together(const command_line& line) {
    refuse("--log", host_options_problem(line.model.host));
    refuse("--log", host_options_problem(line.excel.host));
    refuse("--out", model_options_problem(line.model));
    refuse("calc", calc_options_problem(line.calc));
    refuse("study", study_options_problem(line.study));
    refuse("search", search_options_problem(line.search));
}

/// A sub-command and what runs it.
struct sub_command {
    CLI::App* options;
    int (*run)(command_line& line, std::ostream& out, std::ostream& err);
};

int run_calc(command_line& line, std::ostream& out, std::ostream& err) {
    if (line.calc.json_lines) {
        return calc_projects(line.calc, out);
    }
    line.calc.source.project = line.calc.projects.front();
    return calc_design(line.calc, out, err);
}

int run_export(command_line& line, std::ostream& out, std::ostream& err) {
    line.files.source = line.calc.source;
    return export_design(line.files, out, err);
}

int run_report(command_line& line, std::ostream& out, std::ostream& err) {
    line.report.source = line.calc.source;
    line.report.last = line.calc.last;
    return report_design(line.report, out, err);
}

int run_assist(command_line& line, std::ostream& out, std::ostream& err) {
    line.assist.source = line.calc.source;
    return assist_design(line.assist, out, err);
}

int run_limits(command_line& line, std::ostream& out, std::ostream& err) {
    line.limits.source = line.calc.source;
    line.limits.last = line.calc.last;
    return print_limits(line.limits, out, err);
}

int run_gt(command_line& line, std::ostream& out, std::ostream& err) {
    line.gt.source = line.calc.source;
    return make_gt_model(line.gt, out, err);
}

int run_model(command_line& line, std::ostream& out, std::ostream& err) {
    line.model.source = line.calc.source;
    return build_models(line.model, out, err);
}

int run_excel(command_line& line, std::ostream& out, std::ostream& err) {
    line.excel.source = line.calc.source;
    return fill_excel_workbook(line.excel, out, err);
}

int run_study(command_line& line, std::ostream& out, std::ostream& err) {
    line.study.source = line.calc.source;
    line.study.last = line.calc.last;
    return run_study_command(line.study, out, err);
}

int run_search(command_line& line, std::ostream& out, std::ostream& err) {
    line.search.source = line.calc.source;
    line.search.last = line.calc.last;
    return run_search_command(line.search, out, err);
}

/// Every sub-command in the order of the help text.
std::vector<sub_command> add_sub_commands(CLI::App& app, command_line& line) {
    app.require_subcommand(1);
    return {{add_calc(app, line), run_calc},     {add_export(app, line), run_export},
            {add_report(app, line), run_report}, {add_assist(app, line), run_assist},
            {add_limits(app, line), run_limits}, {add_gt(app, line), run_gt},
            {add_model(app, line), run_model},   {add_excel(app, line), run_excel},
            {add_study(app, line), run_study},   {add_search(app, line), run_search}};
}

void set_up(CLI::App& app) {
    app.footer(std::string("Examples:\n") + EXAMPLES + "\n\nExit status: " + EXIT_STATUSES);
    app.set_version_flag("--version", VERSION);
    app.allow_windows_style_options(false);  // a path may begin with "/" there too
}

/// Reads the options and runs the command that they name.
int run_options(int argc, const char* const* argv, command_line& line, std::ostream& out,
                std::ostream& err) {
    CLI::App app{ABOUT, NAME};
    set_up(app);
    const std::vector<sub_command> commands = add_sub_commands(app, line);
    try {
        app.parse(argc, argv);
        for (const std::string& option : line.typed) {
            line.calc.source.typed.push_back(parse_typed(option));
        }
        line.calc.last = stage_of(line.stage);
        check_together(line);
    } catch (const CLI::ParseError& ended) {
        return app.exit(ended, out, err) == 0 ? EXIT_OK : EXIT_USAGE;
    }
    const auto command = std::ranges::find_if(
        commands, [](const sub_command& one) { return one.options->parsed(); });
    return command->run(line, out, err);
}

}  // namespace

int run_command_line(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    command_line line;
    const std::int16_t& language = line.calc.source.language;
    int status = EXIT_UNREADABLE;
    try {
        status = run_options(argc, argv, line, out, err);
    } catch (const std::bad_alloc&) {
        err << run_time_error_line(run_time_error(failure::out_of_memory), language) << '\n';
    }
    return status_after_printing(status, out, err, language);
}

program_description described_program() {
    CLI::App app{ABOUT, NAME};
    set_up(app);
    command_line line;
    add_sub_commands(app, line);
    return {described_command(app), VERSION, EXAMPLES, EXIT_STATUSES, described_entries()};
}

}  // namespace kvt
