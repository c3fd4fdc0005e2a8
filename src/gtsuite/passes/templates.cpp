#include "gtsuite/model_passes.hpp"

namespace kvt {

pass_count add_templates(model_lines& lines, pass_work&) {
    const std::size_t end = anchor_line(lines, "    </template_table>");
    insert_ahead(lines, end, {"        <tt id=\"106\"/>", "        <tt id=\"114701\"/>"});
    return {2, 2};
}

}  // namespace kvt
