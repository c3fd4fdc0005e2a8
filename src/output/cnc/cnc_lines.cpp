#include "output/cnc/cnc_lines.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "base/fixed_number.hpp"
#include "core/text_table.hpp"

#include <cmath>

namespace kvt {

std::string_view cnc_text(std::string_view line, std::int16_t language) {
    return form_text("cnc", line, language);
}

cnc_lines::cnc_lines(text_lines& text, const file_source& source)
    : text_(text),
      decimals_(source.choices.cnc_res_digits),
      unit_(source.unit),
      language_(source.language) {}

void cnc_lines::comment(std::string_view row, std::string_view rest) {
    text_.line(std::string(cnc_text(row, language_)) + std::string(rest));
}

std::string cnc_lines::length(double mm) const {
    return fixed_number(unit_.from_mm(mm), decimals_);
}

std::string cnc_lines::words(point2 point) const {
    return "X" + length(point.x) + "Y" + length(point.y);
}

void cnc_lines::xy(point2 point) {
    text_.raw_line(words(point));
}

void cnc_lines::xy(const std::vector<point2>& points) {
    for (const point2& point : points) {
        xy(point);
    }
}

void cnc_lines::lathe_feed_g01(double radius, double degrees) {
    text_.raw_line("G01X" + length(radius) + "C" + fixed_number(degrees, decimals_));
}

void cnc_lines::feed_g01(point2 end) {
    text_.raw_line("G01" + words(end));
}

void cnc_lines::arc_cw_g02(point2 end, double radius) {
    text_.raw_line("G02" + words(end) + "R" + length(radius));
}

void cnc_lines::arc_ccw_g03(point2 end, double radius) {
    text_.raw_line("G03" + words(end) + "R" + length(radius));
}

void cnc_lines::move(const tool_move& move) {
    switch (move.kind) {
        case move_kind::clockwise_g02:
            arc_cw_g02(move.end, move.radius);
            return;
        case move_kind::counterclockwise_g03:
            arc_ccw_g03(move.end, move.radius);
            return;
        case move_kind::line_g01:
            break;
    }
    feed_g01(move.end);
}

void add_lathe_line(cnc_lines& lines, point2 point) {
    const double radius = checked_sqrt(point.x * point.x + point.y * point.y);
    double degrees = std::atan(checked_divide(point.y, point.x)) * 180.0 / PI_D;
    if (point.x < 0.0 && point.y != 0.0) {
        degrees = degrees + 180.0;
    } else if (point.x > 0.0 && point.y < 0.0) {
        degrees = degrees + 360.0;
    }
    lines.lathe_feed_g01(radius, degrees);
}

}  // namespace kvt
