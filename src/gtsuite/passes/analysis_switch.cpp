#include "gtsuite/model_passes.hpp"

#include <algorithm>

namespace kvt {

pass_count switch_on_analysis(model_lines& lines, pass_work&) {
    const auto found = std::ranges::find(
        lines, std::string_view("<va a_id=\"973742\" text=\"\" unitID=\"0\"/>"), without_blanks);
    if (found == lines.end()) {
        return {};
    }
    *found = "                <va a_id=\"973742\" on=\"true\" text=\"\" unitID=\"0\"/>";
    return {1, 1};
}

}  // namespace kvt
