#include "kvt/export_request.hpp"

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
            return chooses_nothing(*this) || names(file) ||
                   holds(chosen_of(*this, file.group), "all");
        case file_choice::only_by_name:
            return names(file) || holds(chosen_of(*this, file.group), "all");
        case file_choice::by_flag:
            return names(file);
        case file_choice::always:
            break;
    }
    return true;
}

bool export_request::wants_performance() const {
    return workbook || flagged.contains(file_group::data);
}

}  // namespace kvt
