#include "app/study/study_json.hpp"

#include "app/study/run_words.hpp"
#include "app/study/study_problem.hpp"

#include <optional>
#include <vector>

namespace kvt {

namespace {

study_row row_of_fields(const study& designs, const study_json& object) {
    study_row row;
    row.number = object.at("design");
    for (const study_variable& variable : designs.plan().variables) {
        row.texts.push_back(object.at("typed").at(variable.control));
    }
    row.result =
        result_of_words(object.at("end").get<std::string>(), object.at("ports").get<std::string>(),
                        object.at("performance").get<std::string>());
    for (const chosen_quantity& quantity : designs.recorded()) {
        const study_json& value = object.at("values").at(quantity.name);
        row.values.push_back(value.is_null() ? std::nullopt : std::optional(value.get<double>()));
    }
    row.messages = object.at("messages").get<std::vector<std::string>>();
    row.hints = object.at("hints").get<std::vector<std::string>>();
    row.meets_conditions = true;
    return row;
}

}  // namespace

study_json json_of_row(const study& designs, const study_row& row) {
    study_json object = {{"design", row.number}};
    study_json& typed = object["typed"] = study_json::object();
    for (std::size_t i = 0; i < row.texts.size(); ++i) {
        typed[designs.plan().variables[i].control] = row.texts[i];
    }
    object["end"] = batch_end_name(row.result.end);
    object["ports"] = ports_word(row.result);
    object["performance"] = performance_word(row.result);
    study_json& values = object["values"] = study_json::object();
    for (std::size_t i = 0; i < row.values.size(); ++i) {
        values[designs.recorded()[i].name] =
            row.values[i] ? study_json(*row.values[i]) : study_json(nullptr);
    }
    object["messages"] = row.messages;
    object["hints"] = row.hints;
    return object;
}

study_row row_of_json(const study& designs, const study_json& object) {
    try {
        return row_of_fields(designs, object);
    } catch (const study_json::exception&) {
        throw study_problem("no_row", {text_of_json(object)});
    }
}

std::string text_of_json(const study_json& object) {
    return object.dump(-1, ' ', false, study_json::error_handler_t::replace);
}

study_json json_of_text(std::string_view text) {
    try {
        return study_json::parse(text);
    } catch (const study_json::exception&) {
        throw study_problem("no_row", {std::string(text)});
    }
}

}  // namespace kvt
