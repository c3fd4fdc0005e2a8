#include "app/export/export_request.hpp"

#include "app/files/cnc_output.hpp"
#include "base/number_text.hpp"

#include <algorithm>

namespace kvt {

namespace {

bool holds(const std::vector<std::string>& names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

const std::vector<std::string>& chosen_of(const export_request& request, file_group group) {
    static const std::vector<std::string> NONE;
    const auto found = request.chosen.find(group);
    return found == request.chosen.end() ? NONE : found->second;
}

bool chooses_nothing(const export_request& request) {
    return std::ranges::all_of(request.chosen,
                               [](const auto& chosen) { return chosen.second.empty(); });
}

}  // namespace

bool export_request::names(const written_file& file) const {
    return flagged.contains(file.group) || holds(chosen_of(*this, file.group), file.name);
}

bool export_request::wants(const written_file& file) const {
    switch (row_of(file.group).choice) {
        case file_choice::by_name:
            return (chooses_nothing(*this) && !only_chosen) || names(file) ||
                   holds(chosen_of(*this, file.group), "all");
        case file_choice::only_by_name:
            return names(file) || holds(chosen_of(*this, file.group), "all");
        case file_choice::by_flag:
            return names(file);
        case file_choice::always:
            break;
    }
    return !only_chosen || names(file);
}

bool export_request::wants_performance() const {
    return workbook || flagged.contains(file_group::data);
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

std::string chord_error_problem(const std::string& text) {
    constexpr double SMALLEST_MM = 1e-5;
    constexpr double LARGEST_MM = 1.0;
    try {
        const double mm = number_of_text(text);
        return mm >= SMALLEST_MM && mm <= LARGEST_MM ? "" : "'" + text + "' is not 0.00001 .. 1";
    } catch (const run_time_error&) {
        return "'" + text + "' is no length";
    }
}

}  // namespace kvt
