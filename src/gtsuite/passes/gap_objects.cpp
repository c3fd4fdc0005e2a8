#include "base/number_text.hpp"
#include "gtsuite/model_passes.hpp"

namespace kvt {

namespace {

/// Half of both gaps each when the rotors are balanced, else all of it below.
std::string gap_height(axial_gap gap) {
    constexpr const char* EACH_SIDE = "[axial_clearance_each_side]";
    return gap == axial_gap::upper ? std::string("=[Shadow_Port_Enable]*") + EACH_SIDE
                                   : std::string("=(2-[Shadow_Port_Enable])*") + EACH_SIDE;
}

std::vector<object_value> gap_values(axial_gap gap, double velocity_factor) {
    return {{331255, "[Rotor_Diameter]", 3},
            {331286, gap_height(gap), 6},
            {331337, "[Rotor_Width]", 3},
            {331368, "=" + number_text(velocity_factor) + "*[RPM]", 41},
            {331399, "def", 32},
            {897757, "def", 0},
            {967237, "def", 0},
            {978687, "h969428", 0},
            {978897, "def", 0},
            {978898, "def", 0},
            {978899, "h969573", 0},
            {978900, "def", 36}};
}

void append_gap(model_lines& added, axial_gap gap, const pass_work& work) {
    added.push_back("        <object id=\"o" + std::to_string(work.ids.object(gap)) + "\" name=\"" +
                    std::string(gap_name(gap)) + "\" t_id=\"331097\">");
    added.emplace_back("            <value>");
    for (const object_value& value : gap_values(gap, work.pump.velocity_factor)) {
        added.push_back(value_line(value));
    }
    added.emplace_back("            </value>");
    added.emplace_back("        </object>");
}

}  // namespace

pass_count add_gap_objects(model_lines& lines, pass_work& work) {
    const std::size_t table = anchor_line(lines, "    <object_table>");
    model_lines added;
    for (const axial_gap gap : AXIAL_GAPS) {
        append_gap(added, gap, work);
    }
    insert_behind(lines, table, added);
    return {2, static_cast<int>(added.size())};
}

}  // namespace kvt
