// The lines of a CNC file: comments, coordinates and G-codes, numbers in one fixed format.
// Source: docs/file-formats.md, "CNC files (`.cnc`)".
#pragma once

#include "base/text_file.hpp"
#include "geometry/point2.hpp"
#include "output/cnc/tool_contour.hpp"
#include "output/file_source.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// The text of a row of the CNC texts in a language.
std::string_view cnc_text(std::string_view line, std::int16_t language);

/// Appends lines to a text. Lengths come in mm and are written in the unit of the file; every
/// number has cnc_res_digits decimals. Nothing is ever taken back, so a writer that fails leaves
/// what it wrote.
class cnc_lines {
  public:
    cnc_lines(text_lines& text, const file_source& source);

    void comment(std::string_view line) { text_.line(line); }
    /// A comment of the text table, with what follows it.
    void comment(std::string_view row, std::string_view rest);

    /// "X...Y..."
    void xy(point2 point);
    void xy(const std::vector<point2>& points);
    /// "G01X...C...": a radius in mm and an angle in degrees, which has the same decimals and is
    /// never divided.
    void lathe_feed_g01(double radius, double degrees);
    /// "G01X...Y..."
    void feed_g01(point2 end);
    /// "G02X...Y...R..."
    void arc_cw_g02(point2 end, double radius);
    /// "G03X...Y...R..."
    void arc_ccw_g03(point2 end, double radius);
    /// The line of a move: G01, G02 or G03.
    void move(const tool_move& move);
    /// A line that is always the same.
    void literal(std::string_view line) { text_.raw_line(line); }

    /// A length as it stands in a coordinate.
    std::string length(double mm) const;

  private:
    std::string words(point2 point) const;

    text_lines& text_;
    int decimals_;
    const length_unit& unit_;
    std::int16_t language_;
};

/// The lathe line of a point: its radius, and its angle from the x axis by arctan(y / x) * 180 /
/// PI_D with 180 or 360 added by the quadrant. Kept: a point with x < 0 and y = 0 reads C0;
/// cnc_lines_test holds it. Throws
/// division_by_zero when x is 0.
void add_lathe_line(cnc_lines& lines, point2 point);

}  // namespace kvt
