#include "gtsuite/model_passes.hpp"

#include <algorithm>

namespace kvt {

namespace {

/// The line of the file's own `next_obj="N"` gets a higher number. Answers the lines changed.
int raise_next_object(model_lines& lines, long long highest) {
    constexpr std::string_view NAME = " next_obj=\"";
    for (std::string& line : lines) {
        const std::optional<std::string_view> value = attribute(line, "next_obj");
        if (!value) {
            continue;
        }
        if (leading_number(*value) > highest) {
            return 0;
        }
        line.replace(line.find(NAME) + NAME.size(), value->size(), std::to_string(highest + 1));
        return 1;
    }
    return 0;
}

}  // namespace

pass_count find_free_ids(model_lines& lines, pass_work& work) {
    work.ids = read_model_ids(lines);
    const auto objects = std::ranges::count_if(lines, [](const std::string& line) {
        return line.find("<object id=\"o") != std::string::npos;
    });
    return {static_cast<int>(objects), raise_next_object(lines, work.ids.highest_new())};
}

}  // namespace kvt
