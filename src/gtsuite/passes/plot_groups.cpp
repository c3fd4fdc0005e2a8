#include "gtsuite/model_passes.hpp"

#include <array>

namespace kvt {

namespace {

constexpr std::array PUMP_PLOTS = {126,    175024, 817760, 406816, 122,   175393,
                                   175282, 873230, 123,    873231, 124,   175153,
                                   896869, 904572, 125,    175120, 175188};
constexpr std::array VOLUME_PLOTS = {892773, 1110,   10047, 10096,  10048, 891307,
                                     890930, 891308, 1109,  891309, 10046};
constexpr std::array GAP_PLOTS = {9,      11,     23,     7,      13,     19,     331128,
                                  331133, 500647, 880038, 331129, 331134, 880039, 331130,
                                  331131, 817768, 331127, 331132, 896732, 898346};

/// The plot that stands at its default place.
constexpr int PLOT_AT_DEFAULT = 904572;

struct plot_group {
    int id;
    std::span<const int> plots;
};

constexpr std::array GROUPS = {plot_group{65542, PUMP_PLOTS}, plot_group{65544, VOLUME_PLOTS},
                               plot_group{331097, GAP_PLOTS}};

}  // namespace

pass_count add_plot_groups(model_lines& lines, pass_work&) {
    const std::size_t plots = anchor_line_beginning(lines, "    <plots axis");
    model_lines added;
    for (const plot_group& group : GROUPS) {
        added.push_back("        <group id=\"" + std::to_string(group.id) + "\">");
        for (const int plot : group.plots) {
            added.push_back("            <plot id=\"" + std::to_string(plot) + "\"" +
                            (plot == PLOT_AT_DEFAULT ? " loc=\"def\"" : "") + "/>");
        }
        added.emplace_back("        </group>");
    }
    insert_behind(lines, plots, added);
    return {static_cast<int>(GROUPS.size()), static_cast<int>(added.size())};
}

}  // namespace kvt
