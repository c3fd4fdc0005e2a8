#include "kvt/study_command.hpp"

#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "app/study/pareto_front.hpp"
#include "app/study/study_file.hpp"
#include "app/study/study_problem.hpp"
#include "app/study/study_text.hpp"
#include "base/path_text.hpp"
#include "base/standard_streams.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/study_progress.hpp"

#include <charconv>
#include <chrono>
#include <filesystem>
#include <optional>
#include <ostream>
#include <system_error>
#include <utility>

namespace kvt {

namespace {

/// What stands in the table when nothing is named: what the engineer sees of a design.
constexpr std::array USUALLY_RECORDED = {
    "capacity",  "area_ratio",     "max_chamb_vol",       "min_chamb_vol",   "outer_diameter",
    "max_speed", "flow_m3s_max",   "vol_eff_max",         "overall_eff_max", "power_max",
    "hertz_max", "ripple_percent", "max_shaft_side_load", "max_cutter_inner"};

/// How often a front is written while it changes.
constexpr std::chrono::seconds BETWEEN_FRONTS = std::chrono::seconds(10);

/// I/N of --shard: the part I = 1 .. N.
struct shard {
    std::uint64_t number = 1, count = 1;
};

std::optional<shard> shard_of(const std::string& text) {
    const std::size_t slash = text.find('/');
    shard found;
    const auto read = [](std::string_view part, std::uint64_t& number) {
        const char* end = part.data() + part.size();
        return !part.empty() && std::from_chars(part.data(), end, number).ptr == end;
    };
    const std::string_view whole = text;
    const bool is_read = slash != std::string::npos && read(whole.substr(0, slash), found.number) &&
                         read(whole.substr(slash + 1), found.count);
    return is_read && found.number >= 1 && found.number <= found.count ? std::optional(found)
                                                                       : std::nullopt;
}

study_plan plan_of(const study_request& request) {
    study_plan plan;
    for (const std::string& text : request.varied) {
        plan.variables.push_back(study_variable_of(text));
    }
    plan.sample = study_sample_of(request.sample);
    plan.sample.seed = request.seed;
    plan.recorded = request.recorded;
    if (plan.recorded.empty()) {
        plan.recorded.assign(USUALLY_RECORDED.begin(), USUALLY_RECORDED.end());
    }
    for (const std::string& text : request.conditions) {
        plan.conditions.push_back(study_condition_of(text));
    }
    for (const std::string& text : request.aims) {
        plan.aims.push_back(study_aim_of(text));
    }
    plan.last = request.last;
    return plan;
}

bool has_ending(std::string_view path, std::string_view ending) {
    return path.ends_with(ending);
}

study_format format_of(const study_request& request) {
    return request.json_lines || has_ending(request.out, ".jsonl") ? study_format::json_lines
                                                                   : study_format::csv;
}

/// With projects to be saved, --out is the folder of both.
study_place place_of(const study_request& request, const study& designs) {
    const shard part = *shard_of(request.shard);
    const study_format format = format_of(request);
    std::filesystem::path path = path_of_utf8(request.out);
    if (request.saved_count > 0) {
        path /= format == study_format::csv ? "study.csv" : "study.jsonl";
    }
    return {path, format, part_of_study(designs.size(), part.number, part.count)};
}

/// One run of the command behind its options.
class study_run {
  public:
    study_run(const study& designs, const study_request& request, std::ostream& out,
              std::ostream& err)
        : designs_(designs),
          request_(request),
          place_(place_of(request, designs)),
          out_(out),
          err_(err) {}

    int run() {
        const std::optional<std::uint64_t> next = first_design();
        if (next && *next == place_.part.end && place_.part.size() > 0) {
            err_ << request_.out << ": the study is finished\n";
            return EXIT_OK;
        }
        const work_range range = {next.value_or(place_.part.begin), place_.part.end};
        const bool is_whole = request_.aims.empty() ? run_rows(range, next.has_value())
                                                    : run_front(range, next.has_value());
        if (!is_whole) {
            tell_broken_off();
            return EXIT_REFUSED;
        }
        return EXIT_OK;
    }

  private:
    /// Nothing when the table begins anew.
    std::optional<std::uint64_t> first_design() const {
        return request_.resumes ? first_missing(designs_, place_) : std::nullopt;
    }

    bool run_rows(const work_range& range, bool goes_on) {
        if (request_.out.empty()) {
            out_ << head_line(designs_, place_.format);
            return run_designs(range, [&](study_row&& row) {
                out_ << row_line(designs_, row, place_.format);
                return static_cast<bool>(out_);
            });
        }
        growing_study_file file(designs_, place_, goes_on);
        const bool is_whole = run_designs(range, [&](const study_row& row) {
            file.add(row);
            return true;
        });
        if (is_whole) {
            file.finish();
        }
        return is_whole;
    }

    bool run_front(const work_range& range, bool goes_on) {
        pareto_front front(designs_);
        if (goes_on) {
            for (study_row& row : rows_of_file(designs_, place_)) {
                front.add(std::move(row));
            }
        }
        auto written = std::chrono::steady_clock::now();
        std::uint64_t next = range.begin;
        save(front, next);
        const bool is_whole = run_designs(range, [&](study_row&& row) {
            next = row.number + 1;
            front.add(std::move(row));
            if (std::chrono::steady_clock::now() - written >= BETWEEN_FRONTS) {
                save(front, next);
                written = std::chrono::steady_clock::now();
            }
            return true;
        });
        save(front, is_whole ? range.end : next);
        print(front);
        if (is_whole) {
            save_projects(front);
        }
        return is_whole;
    }

    void save(const pareto_front& front, std::uint64_t next) const {
        if (!request_.out.empty()) {
            write_study_rows(designs_, place_, front.rows(), next);
        }
    }

    void print(const pareto_front& front) const {
        if (!request_.out.empty()) {
            return;
        }
        out_ << head_line(designs_, place_.format);
        for (const study_row& row : front.rows()) {
            out_ << row_line(designs_, row, place_.format);
        }
    }

    /// best_1.KVT, best_2.KVT ... from the best of the first aim on.
    void save_projects(const pareto_front& front) const {
        std::size_t number = 0;
        for (const study_row& row : front.spread_rows(request_.saved_count)) {
            ++number;
            program typed = designs_.base();
            silent_user person;
            for (std::size_t i = 0; i < row.texts.size(); ++i) {
                type_entry(typed, person, {designs_.plan().variables[i].control, row.texts[i]});
            }
            const std::filesystem::path path =
                path_of_utf8(request_.out) /
                path_of_utf8("best_" + std::to_string(number) + ".KVT");
            write_entries(typed, utf8_of_path(path));
            out_ << utf8_of_path(path) << '\n';
        }
    }

    /// All rows count as done, those that meet the conditions are handed on.
    bool run_designs(const work_range& range, const std::function<bool(study_row&&)>& take) {
        const interruption by_user;
        study_progress progress(err_, range.size(), is_error_a_terminal());
        const unsigned jobs = request_.jobs == 0 ? processor_count() : request_.jobs;
        const bool is_whole = run_study(
            designs_, range, jobs,
            [&](study_row&& row) {
                const bool goes_on = !row.meets_conditions || take(std::move(row));
                progress.step();
                return goes_on;
            },
            &by_user.flag());
        progress.finish();
        return is_whole;
    }

    void tell_broken_off() const {
        err_ << "broken off"
             << (request_.out.empty() ? "" : "; the same command with --resume goes on") << '\n';
    }

    const study& designs_;
    const study_request& request_;
    study_place place_;
    std::ostream& out_;
    std::ostream& err_;
};

void print_quantities(const program& base, std::ostream& out) {
    for (const study_quantity& quantity : study_quantities(base)) {
        out << quantity.name << index_form(quantity.spread)
            << (quantity.unit.empty() ? "" : " [" + quantity.unit + "]") << '\n';
    }
}

/// The folder that projects are saved to.
void make_folder(const study_request& request) {
    std::error_code error;
    if (request.saved_count > 0) {
        std::filesystem::create_directories(path_of_utf8(request.out), error);
    }
    if (error) {
        throw run_time_error(failure::path_file_access, request.out,
                             {file_fault::reason::system, error.value()});
    }
}

}  // namespace

std::string shard_problem(const std::string& text) {
    return shard_of(text) ? "" : "'" + text + "' is not I/N with I from 1 to N";
}

std::string study_options_problem(const study_request& request) {
    if (request.saved_count > 0 && (request.aims.empty() || request.out.empty())) {
        return "--save-best needs --pareto, which says what is best, and --out, a folder";
    }
    if (request.resumes && request.out.empty()) {
        return "--resume needs --out";
    }
    return {};
}

int run_study_command(const study_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program base;
    if (const auto early = open_design(base, person, request.source)) {
        return exit_status(*early);
    }
    if (request.lists_quantities) {
        print_quantities(base, out);
        return EXIT_OK;
    }
    try {
        const study designs(base, plan_of(request));
        make_folder(request);
        return study_run(designs, request, out, err).run();
    } catch (const study_problem& problem) {
        err << problem.text(request.source.language) << '\n';
        return EXIT_USAGE;
    } catch (const run_time_error& error) {
        err << request.out << ": " << run_time_error_line(error, request.source.language) << '\n';
        return EXIT_REFUSED;
    }
}

}  // namespace kvt
