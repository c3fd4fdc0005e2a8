#include "kvt/study_options.hpp"

#include "kvt/option_check.hpp"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>
#include <vector>

namespace kvt {

namespace {

/// An option that may be given many times, one text each.
void add_texts(CLI::App& command, const char* name, std::vector<std::string>& texts,
               const char* value, const std::string& help) {
    command.add_option(name, texts, help + ". May be given many times")
        ->type_name(value)
        ->allow_extra_args(false);
}

void add_varying(CLI::App& command, std::vector<std::string>& varied,
                 std::vector<std::string>& recorded) {
    add_texts(command, "--vary", varied, "CONTROL=LIST|RANGE",
              "Type other texts into a control from design to design: a list, ecc=2,2.1,2.5,\n"
              "numbers in steps, ecc=2:3:0.05, or any number of a range, ecc=2:3");
    command
        .add_option("--record", recorded,
                    "Quantities of the table; default: those that the forms show")
        ->type_name("NAME,..")
        ->delimiter(',')
        ->allow_extra_args(false);
}

void add_out(CLI::App& command, study_out& out, unsigned& jobs) {
    command
        .add_option(
            "--out", out.out,
            "Table to write, as comma-separated values or as JSON lines; default: standard\n"
            "output")
        ->type_name("FILE.csv|FILE.jsonl");
    command.add_flag("--jsonl", out.json_lines, "A line of JSON a design");
    command
        .add_option("--save-best", out.saved_count,
                    "Save so many of the best designs, spread evenly, as projects; --out is the\n"
                    "folder")
        ->type_name("K");
    add_jobs_option(command, jobs);
}

void add_sample(CLI::App& command, study_request& study) {
    command
        .add_option("--sample", study.sample,
                    "Every combination of the lists and steps, or N designs spread over the\n"
                    "ranges: Latin hypercube or Sobol sequence; default: grid")
        ->type_name("grid|latin:N|sobol:N");
    command.add_option("--seed", study.seed, "Another Latin hypercube, another Sobol sequence")
        ->type_name("NUMBER")
        ->check(plain(CLI::NonNegativeNumber));
}

/// Which of its rows a study keeps, and which of its designs it calculates.
void add_parts(CLI::App& command, study_request& study) {
    add_texts(command, "--where", study.conditions, "CONDITION",
              "Keep designs alone that meet a condition: 'outer_diameter<=58', with <, <=, =,\n"
              ">=, > or !=");
    command
        .add_option("--pareto", study.aims,
                    "Keep the designs alone that no other one beats in all of these quantities")
        ->type_name("NAME:max|min,..")
        ->delimiter(',')
        ->allow_extra_args(false);
    command
        .add_option("--shard", study.shard,
                    "Part I of N of the study: the parts, put together, are the whole")
        ->type_name("I/N")
        ->check(check_of(shard_problem));
    command.add_flag("--resume", study.resumes, "Go on behind the last row of a table");
}

}  // namespace

void add_jobs_option(CLI::App& command, unsigned& jobs) {
    constexpr int MOST_JOBS = 1024;
    command.add_option("--jobs", jobs, "Threads that calculate; default: one a processor")
        ->type_name("N")
        ->check(plain(CLI::Range(1, MOST_JOBS)));
}

void add_study_options(CLI::App& command, study_request& study) {
    add_varying(command, study.varied, study.recorded);
    command.add_flag("--quantities", study.lists_quantities,
                     "List the names and units of all quantities, and calculate nothing");
    add_sample(command, study);
    add_parts(command, study);
    add_out(command, study.out, study.jobs);
}

void add_search_options(CLI::App& command, search_request& search) {
    constexpr std::uint64_t MOST_DESIGNS = 10000000;
    add_varying(command, search.varied, search.recorded);
    command
        .add_option("--step", search.step,
                    "Step of ranges that have none of their own; default: 0.01")
        ->type_name("STEP");
    add_texts(command, "--target", search.targets, "NAME=VALUE[:TOLERANCE]",
              "What a quantity has to come to, within 1 % or the tolerance");
    add_texts(command, "--limit", search.limits, "CONDITION",
              "A condition that designs have to meet: 'outer_diameter<=58'");
    add_texts(command, "--minimize", search.minimized, "NAME", "A quantity that is to be small");
    add_texts(command, "--maximize", search.maximized, "NAME", "A quantity that is to be large");
    command.add_option("--budget", search.budget, "Designs to calculate; default: 1000")
        ->type_name("N")
        ->check(plain(CLI::Range(std::uint64_t{1}, MOST_DESIGNS)));
    command.add_option("--seed", search.seed, "Another search")
        ->type_name("NUMBER")
        ->check(plain(CLI::NonNegativeNumber));
    add_out(command, search.out, search.jobs);
}

}  // namespace kvt
