#include "base/number_text.hpp"
#include "gtsuite/model_passes.hpp"

#include <array>

namespace kvt {

namespace {

constexpr std::string_view TABLE_START = "<![CDATA[";
constexpr std::string_view TABLE_END = "]]></va>";
constexpr std::size_t TABLE_ROWS = 4;

/// Puts a text ahead of the end of a row. Answers the lines changed.
int append_to_row(std::string& line, const std::string& added) {
    const std::size_t end = line.rfind(TABLE_END);
    if (added.empty() || end == std::string::npos) {
        return 0;
    }
    line.insert(end, added);
    return 1;
}

/// Each gap is one more connection of the volume: width in mm, two angles in degrees. The second
/// row stays.
pass_count connect_volume(model_lines& lines, std::string_view name, double width) {
    const std::optional<line_range> object = find_object(lines, "name", name);
    if (!object) {
        return {};
    }
    const std::string both_widths = "|" + number_text(width) + "|" + number_text(width);
    const std::array<std::string, TABLE_ROWS> added = {both_widths, "", "|90.0|90.0", "|0.0|0.0"};
    pass_count count{1, 0};
    std::size_t row = 0;
    for (std::size_t i = object->first; i <= object->last && row < TABLE_ROWS; ++i) {
        if (lines[i].find(TABLE_START) != std::string::npos) {
            count.lines += append_to_row(lines[i], added[row]);
            ++row;
        }
    }
    return count;
}

}  // namespace

pass_count add_volume_connections(model_lines& lines, pass_work& work) {
    const pass_count inlet = connect_volume(lines, "InletVol", work.pump.inlet_gap_width);
    const pass_count outlet = connect_volume(lines, "OutletVol", work.pump.outlet_gap_width);
    return {inlet.objects + outlet.objects, inlet.lines + outlet.lines};
}

}  // namespace kvt
