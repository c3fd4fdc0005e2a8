#include "kvt/limits_command.hpp"

#include "app/program.hpp"
#include "app/trial/design_trial.hpp"
#include "app/trial/entry_limits.hpp"
#include "app/trial/limits_text.hpp"
#include "core/entry_numbers.hpp"
#include "kvt/aligned_lines.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/json_fields.hpp"
#include "kvt/report_texts.hpp"
#include "kvt/stage_words.hpp"

#include <algorithm>
#include <ostream>
#include <utility>

namespace kvt {

namespace {

/// An entry with the stage up to which it was tried, and what was found.
struct found_limits {
    const entry_field& entry;
    calc_stage last;
    std::optional<entry_limits> limits;
};

bool is_box(const entry_field& entry) {
    return entry.kind == entry_kind::text;
}

/// The last stage, not beyond `last`, up to which the design is accepted as it stands.
calc_stage accepted_stage(const program& kavetta, calc_stage last) {
    for (const calc_stage stage : {calc_stage::performance, calc_stage::ports}) {
        if (stage <= last && try_design(kavetta, std::nullopt, stage).accepted) {
            return stage;
        }
    }
    return calc_stage::profiles;
}

std::vector<const entry_field*> entries_of(const limits_request& request, calc_stage accepted) {
    std::vector<const entry_field*> entries;
    entries.reserve(request.entries.size());
    for (const std::string& name : request.entries) {
        entries.push_back(find_entry(name));
    }
    if (!entries.empty()) {
        return entries;
    }
    for (const entry_field& entry : entry_fields()) {
        const bool is_of_a_stage =
            entry.form == "Form1" || entry.form == "portdes" || entry.form == "Perffrm";
        const calc_stage first = reading_stage(entry).value_or(calc_stage::profiles);
        if (is_box(entry) && is_of_a_stage && first <= accepted) {
            entries.push_back(&entry);
        }
    }
    return entries;
}

std::vector<found_limits> find_all(const program& kavetta, const limits_request& request) {
    const calc_stage accepted = accepted_stage(kavetta, request.last);
    std::vector<found_limits> found;
    for (const entry_field* entry : entries_of(request, accepted)) {
        const calc_stage last = std::max(accepted, reading_stage(*entry).value_or(accepted));
        found.push_back({*entry, last, find_limits(kavetta, *entry, last)});
    }
    return found;
}

/// The range, or in its place why there is none; a refused number has the nearest one too.
std::string words_of(const program& kavetta, const found_limits& found) {
    const std::int16_t language = kavetta.app_state.language;
    if (!found.limits) {
        return caption_text("limits", "none_accepted", language);
    }
    const std::string range = range_text(kavetta, found.entry, *found.limits);
    const std::string nearest = nearest_text(kavetta, found.entry, *found.limits);
    return (range.empty() ? caption_text("limits", "no_limits", language) : range) +
           (nearest.empty() ? "" : "; " + nearest);
}

std::string lines_of(const program& kavetta, const std::vector<found_limits>& all) {
    std::vector<std::pair<std::string, std::string>> rows;
    for (const found_limits& found : all) {
        rows.emplace_back(limited_entry_name(kavetta, found.entry), words_of(kavetta, found));
    }
    return aligned_lines(rows);
}

json end_json(const program& kavetta, const std::optional<entry_limit>& end) {
    if (!end) {
        return nullptr;
    }
    return {{"accepted", end->accepted},
            {"refused", end->refused},
            {"shown", end->shown},
            {"reason", limit_reason(end->message, kavetta.app_state.language)},
            {"message", end->message}};
}

json limits_json(const program& kavetta, const found_limits& found) {
    json object = {{"entry", found.entry.name},
                   {"name", limited_entry_name(kavetta, found.entry)},
                   {"unit", entry_unit(found.entry, kavetta.captions, kavetta.app_state)},
                   {"text", kavetta.entries.*found.entry.member},
                   {"stage", stage_word(found.last)},
                   {"found", found.limits.has_value()}};
    if (found.limits) {
        const entry_limits& limits = *found.limits;
        object["is_present_accepted"] = limits.is_present_accepted;
        object["lowest"] = end_json(kavetta, limits.lowest);
        object["highest"] = end_json(kavetta, limits.highest);
        if (const entry_limit* nearest = limits.nearest()) {
            object["nearest"] = nearest->shown;
        }
    }
    return object;
}

std::string report_of(const program& kavetta, const std::vector<found_limits>& all) {
    json report = {{"project_name", kavetta.app_state.project_name}, {"limits", json::array()}};
    for (const found_limits& found : all) {
        report["limits"].push_back(limits_json(kavetta, found));
    }
    return json_text(report, false);
}

bool has_none(const found_limits& found) {
    return !found.limits;
}

}  // namespace

std::string limited_entry_problem(const std::string& name) {
    const entry_field* entry = find_entry(name);
    if (entry == nullptr) {
        return typed_entry_problem({name, {}});
    }
    return is_box(*entry) ? "" : name + " is a check box";
}

int print_limits(const limits_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program kavetta;
    if (const auto early = open_design(kavetta, person, request.source)) {
        return exit_status(*early);
    }
    const std::vector<found_limits> all = find_all(kavetta, request);
    out << (request.json ? report_of(kavetta, all) : lines_of(kavetta, all));
    const bool is_refused = !request.entries.empty() && std::ranges::any_of(all, has_none);
    return is_refused ? EXIT_REFUSED : EXIT_OK;
}

}  // namespace kvt
