#include "app/study/study_document.hpp"

#include "app/program.hpp"
#include "app/stages/design_assist.hpp"
#include "app/stages/silent_user.hpp"
#include "app/stages/typed_entry.hpp"
#include "app/study/study_json.hpp"
#include "app/study/study_problem.hpp"
#include "app/study/study_words.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "core/text_table.hpp"

#include <algorithm>

namespace kvt {

namespace {

constexpr int FILE_VERSION = 1;

study_json json_of_study(const study_document& document) {
    return {{"kavetta_study", FILE_VERSION},
            {"varied", document.varied},
            {"searches", document.searches},
            {"sample", document.sample},
            {"seed", document.seed},
            {"recorded", document.recorded},
            {"conditions", document.conditions},
            {"aims", document.aims},
            {"targets", document.targets},
            {"begins_with_assist", document.begins_with_assist},
            {"step", document.step},
            {"budget", document.budget}};
}

study_document study_of_json(const study_json& object) {
    study_document document;
    document.varied = object.at("varied");
    document.searches = object.at("searches");
    document.sample = object.at("sample");
    document.seed = object.at("seed");
    document.recorded = object.at("recorded");
    document.conditions = object.at("conditions");
    document.aims = object.at("aims");
    document.targets = object.at("targets");
    document.begins_with_assist = object.at("begins_with_assist");
    document.step = object.at("step");
    document.budget = object.at("budget");
    return document;
}

bool are_equal(const study_row& a, const study_row& b) {
    return a.number == b.number && a.texts == b.texts && a.values == b.values &&
           a.messages == b.messages && a.hints == b.hints && a.result.end == b.result.end;
}

}  // namespace

bool operator==(const study_document& a, const study_document& b) {
    return json_of_study(a) == json_of_study(b) && std::ranges::equal(a.rows, b.rows, are_equal);
}

study_plan plan_of_sample(const study_document& document) {
    return study_plan_of({.varied = document.varied,
                          .recorded = document.recorded,
                          .conditions = document.conditions,
                          .aims = document.aims,
                          .sample = document.sample,
                          .seed = document.seed});
}

search_plan plan_of_search(const study_document& document) {
    search_plan plan;
    plan.variables = parts_of(document.varied, study_variable_of);
    plan.step = document.step;
    plan.targets = parts_of(document.targets, search_target_of);
    plan.limits = parts_of(document.conditions, study_condition_of);
    plan.aims = parts_of(document.aims, study_aim_of);
    plan.recorded = document.recorded;
    plan.budget = document.budget;
    plan.seed = document.seed;
    return plan;
}

std::optional<std::vector<std::string>> assisted_texts(
    const program& base, const std::vector<study_variable>& variables) {
    program assisted = base;
    silent_user person;
    try {
        if (design_assist(assisted, person) != assist_end::found) {
            return std::nullopt;
        }
    } catch (const run_time_error&) {
        return std::nullopt;
    }
    std::vector<std::string> texts;
    for (const study_variable& variable : variables) {
        const entry_field* field = find_entry(variable.control);
        texts.push_back(field == nullptr ? "" : assisted.entries.*field->member);
    }
    return texts;
}

study study_of(const program& base, const study_document& document) {
    return {base, document.searches ? study_of_search(plan_of_search(document))
                                    : plan_of_sample(document)};
}

void write_study(const std::filesystem::path& path, const program& base,
                 const study_document& document) {
    study_json object = json_of_study(document);
    study_json& rows = object["rows"] = study_json::array();
    if (!document.rows.empty()) {
        const study designs = study_of(base, document);
        for (const study_row& row : document.rows) {
            rows.push_back(json_of_row(designs, row));
        }
    }
    write_file(path, text_of_json(object) + "\n");
}

study_document read_study(const std::filesystem::path& path, const program& base) {
    const std::string text = read_file(path);
    try {
        const study_json object = study_json::parse(text);
        if (object.at("kavetta_study") != FILE_VERSION) {
            throw study_problem("no_study", {utf8_of_path(path)});
        }
        study_document document = study_of_json(object);
        if (!object.at("rows").empty()) {
            const study designs = study_of(base, document);
            for (const study_json& row : object.at("rows")) {
                document.rows.push_back(row_of_json(designs, row));
            }
        }
        return document;
    } catch (const study_json::exception&) {
        throw study_problem("no_study", {utf8_of_path(path)});
    }
}

void take_over_design(program& kavetta, user& person, const std::vector<study_variable>& variables,
                      const std::vector<std::string>& texts) {
    for (const typed_entry& entry : typed_entries(variables, texts)) {
        type_entry(kavetta, person, entry);
    }
    kavetta.step_caption = find_caption("study_form", "take_over");
}

}  // namespace kvt
