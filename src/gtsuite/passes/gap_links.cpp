#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "gtsuite/model_passes.hpp"

#include <algorithm>
#include <array>

namespace kvt {

namespace {

struct linked_part {
    std::string id, name;
    double center_x = 0.0;
};

/// The part of that name. Throws input_past_end without one.
linked_part part_named(const model_lines& lines, std::string_view name) {
    const auto found = std::ranges::find_if(lines, [&](const std::string& line) {
        return without_blanks(line).starts_with("<part ") && attribute(line, "name") == name;
    });
    if (found == lines.end() || !attribute(*found, "id")) {
        throw run_time_error(failure::input_past_end, "no part " + std::string(name));
    }
    return {std::string(*attribute(*found, "id")), std::string(name),
            val(attribute(*found, "center_x").value_or(""))};
}

linked_part part_of(axial_gap gap, const model_ids& ids) {
    return {"p" + std::to_string(ids.part(gap)), std::string(gap_name(gap))};
}

struct gap_link {
    const linked_part& start;
    const linked_part& end;
    const char* points;
};

std::string link_line(const gap_link& link, long long id) {
    return "                <link end_id=\"" + link.end.id + "\" id=\"l" + std::to_string(id) +
           "\" name_start=\"" + link.start.name + "\" name_end=\"" + link.end.name +
           "\" points=\"" + link.points + "\" start_id=\"" + link.start.id + "\" type=\"1\"/>";
}

}  // namespace

pass_count add_gap_links(model_lines& lines, pass_work& work) {
    const std::size_t table = anchor_line(lines, "            <port_link_table>");
    linked_part left = part_named(lines, "InletVol");
    linked_part right = part_named(lines, "OutletVol");
    // The points of the links suit an outlet on the right: otherwise the drawn lines would cross.
    if (right.center_x < left.center_x) {
        std::swap(left, right);
    }
    const linked_part upper = part_of(axial_gap::upper, work.ids);
    const linked_part lower = part_of(axial_gap::lower, work.ids);
    const std::array links = {
        gap_link{upper, right, "(1025,350)"}, gap_link{left, upper, "(375,350)"},
        gap_link{lower, right, "(1100,250)"}, gap_link{left, lower, "(300,250)"}};
    model_lines added;
    for (const gap_link& link : links) {
        added.push_back(link_line(link, work.ids.link(static_cast<int>(added.size()))));
    }
    insert_behind(lines, table, added);
    return {static_cast<int>(links.size()), static_cast<int>(added.size())};
}

}  // namespace kvt
