#include "kvt/study_command.hpp"

#include "app/program.hpp"
#include "app/study/pareto_front.hpp"
#include "app/study/study_file.hpp"
#include "app/study/study_text.hpp"
#include "base/path_text.hpp"
#include "base/standard_streams.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/study_progress.hpp"

#include <charconv>
#include <chrono>
#include <optional>
#include <ostream>
#include <utility>

namespace kvt {

namespace {

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

study_place place_of(const study_request& request, const study& designs) {
    const shard part = *shard_of(request.shard);
    return {request.out.table(), request.out.format(),
            part_of_study(designs.size(), part.number, part.count)};
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
            err_ << request_.out.out << ": the study is finished\n";
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
        if (request_.out.out.empty()) {
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
        if (is_whole && request_.out.saved_count > 0) {
            save_projects(designs_, front.spread_rows(request_.out.saved_count), request_.out,
                          out_);
        }
        return is_whole;
    }

    void save(const pareto_front& front, std::uint64_t next) const {
        if (!request_.out.out.empty()) {
            write_study_rows(designs_, place_, front.rows(), next);
        }
    }

    void print(const pareto_front& front) const {
        if (!request_.out.out.empty()) {
            return;
        }
        out_ << table_text(designs_, front.rows(), place_.format);
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
             << (request_.out.out.empty() ? "" : "; the same command with --resume goes on")
             << '\n';
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

}  // namespace

std::string shard_problem(const std::string& text) {
    return shard_of(text) ? "" : "'" + text + "' is not I/N with I from 1 to N";
}

std::string study_options_problem(const study_request& request) {
    if (request.out.saved_count > 0 && (request.aims.empty() || request.out.out.empty())) {
        return "--save-best needs --pareto, which says what is best, and --out, a folder";
    }
    if (request.resumes && request.out.out.empty()) {
        return "--resume needs --out";
    }
    return {};
}

int run_study_command(const study_request& request, std::ostream& out, std::ostream& err) {
    return run_on_project(request.source, request.out, err, [&](const program& base) {
        if (request.lists_quantities) {
            print_quantities(base, out);
            return EXIT_OK;
        }
        const study designs(base, study_plan_of(request));
        request.out.make_folder();
        return study_run(designs, request, out, err).run();
    });
}

}  // namespace kvt
