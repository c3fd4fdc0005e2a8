#include "kvt/search_command.hpp"

#include "app/desk/delivered_module.hpp"
#include "app/program.hpp"
#include "app/study/design_search.hpp"
#include "app/study/study_words.hpp"
#include "base/standard_streams.hpp"
#include "base/whole_file.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/study_progress.hpp"

#include <ostream>

namespace kvt {

namespace {

search_plan plan_of(const search_request& request) {
    search_plan plan;
    plan.variables = parts_of(request.varied, study_variable_of);
    plan.targets = parts_of(request.targets, search_target_of);
    plan.limits = parts_of(request.limits, study_condition_of);
    for (const std::string& name : request.minimized) {
        plan.aims.push_back({name, false});
    }
    for (const std::string& name : request.maximized) {
        plan.aims.push_back({name, true});
    }
    plan.recorded = recorded_or_usual(request.recorded);
    plan.step = request.step;
    plan.budget = request.budget;
    plan.seed = request.seed;
    plan.last = request.last;
    return plan;
}

void write_front(const design_search& search, const study_out& where, std::ostream& out) {
    const std::string text = table_text(search.designs(), search.front().rows(), where.format());
    if (where.out.empty()) {
        out << text;
        return;
    }
    write_file(where.table(), text);
    if (where.saved_count > 0) {
        save_projects(search.designs(), search.front().spread_rows(where.saved_count), where, out);
    }
}

/// Answers whether it came to its end.
bool run_to_its_end(design_search& search, const search_request& request, std::ostream& err) {
    const interruption by_user;
    study_progress progress(err, request.budget, is_error_a_terminal());
    const unsigned jobs = request.jobs == 0 ? processor_count() : request.jobs;
    const bool is_whole = search.run(
        jobs, delivered_module("kvt_search.so"), [&](const study_row&) { progress.step(); },
        &by_user.flag());
    progress.finish();
    return is_whole;
}

int told_status(const design_search& search, bool is_whole, std::ostream& err) {
    if (!is_whole) {
        err << "broken off\n";
        return EXIT_REFUSED;
    }
    if (search.front().rows().empty()) {
        err << "no design meets the targets and the limits\n";
        return EXIT_REFUSED;
    }
    return EXIT_OK;
}

}  // namespace

std::string search_options_problem(const search_request& request) {
    return request.out.saved_count > 0 && request.out.out.empty()
               ? "--save-best needs --out, a folder"
               : "";
}

int run_search_command(const search_request& request, std::ostream& out, std::ostream& err) {
    return run_on_project(request.source, request.out, err, [&](const program& base) {
        design_search search(base, plan_of(request));
        request.out.make_folder();
        const bool is_whole = run_to_its_end(search, request, err);
        write_front(search, request.out, out);
        return told_status(search, is_whole, err);
    });
}

}  // namespace kvt
