#include "gtsuite/fluid_library.hpp"

#include "gtsuite/model_text.hpp"

namespace kvt {

namespace {

constexpr std::string_view OBJECT = "object";
constexpr std::size_t OBJECT_AT = 9;
constexpr std::string_view FLUID_TEMPLATE = "114701";

bool is_fluid(std::string_view line) {
    return line.size() > OBJECT_AT && line.substr(OBJECT_AT).starts_with(OBJECT) &&
           attribute(line, "t_id") == FLUID_TEMPLATE;
}

}  // namespace

std::vector<std::string> fluid_names(std::string_view bytes) {
    const model_text text = read_model_text(bytes);
    std::vector<std::string> names;
    for (const std::string& line : text.lines) {
        const std::optional<std::string_view> name = attribute(line, "name");
        if (is_fluid(line) && name) {
            names.push_back(text_of_attribute(*name, text.encoding));
        }
    }
    return names;
}

}  // namespace kvt
