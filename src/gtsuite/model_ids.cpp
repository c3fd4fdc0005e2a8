#include "gtsuite/model_ids.hpp"

#include <algorithm>

namespace kvt {

namespace {

constexpr int LINKS = 4;

}  // namespace

std::string_view gap_name(axial_gap gap) {
    return gap == axial_gap::upper ? "Axial_Gap_Upper" : "Axial_Gap_Lower";
}

long long model_ids::highest_new() const {
    return std::max(object(axial_gap::lower), link(LINKS - 1));
}

model_ids read_model_ids(const model_lines& lines) {
    model_ids ids;
    for (const std::string& line : lines) {
        if (line.find("<object id=\"o") != std::string::npos) {
            ids.highest_object = std::max(ids.highest_object, attribute_number(line, "id", 'o'));
        } else if (without_blanks(line).starts_with("<part ")) {
            ids.highest_part = std::max(ids.highest_part, attribute_number(line, "id", 'p'));
        } else if (without_blanks(line).starts_with("<link ")) {
            ids.highest_part = std::max(ids.highest_part, attribute_number(line, "id", 'l'));
        }
    }
    return ids;
}

}  // namespace kvt
