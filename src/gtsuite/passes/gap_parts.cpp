#include "gtsuite/model_passes.hpp"

namespace kvt {

pass_count add_gap_parts(model_lines& lines, pass_work& work) {
    const std::size_t table = anchor_line(lines, "            <part_table>");
    model_lines added;
    for (const axial_gap gap : AXIAL_GAPS) {
        added.push_back("                <part center_x=\"660\" center_y=\"" +
                        std::string(gap == axial_gap::upper ? "350" : "250") + "\" id=\"p" +
                        std::to_string(work.ids.part(gap)) + "\" name=\"" +
                        std::string(gap_name(gap)) + "\" o_id=\"o" +
                        std::to_string(work.ids.object(gap)) +
                        "\" size_x=\"42\" size_y=\"42\" t_id=\"331097\">");
        added.emplace_back("                    <value/>");
        added.emplace_back("                </part>");
    }
    insert_behind(lines, table, added);
    return {2, static_cast<int>(added.size())};
}

}  // namespace kvt
