// The entities of an exact DXF file of the version AC1015, with their handles.
// Source: docs/file-formats.md, "Exact DXF files (`.dxf`)".
#pragma once

#include "base/text_file.hpp"
#include "exact/exact_contour.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// Group codes and values, with one counter of handles for the whole file.
class dxf_groups {
  public:
    void group(int code, std::string_view value);
    void whole(int code, int value);
    /// Up to 15 digits with a decimal point and no exponent.
    void real(int code, double value);
    /// A new handle as group 5; answers it.
    std::string handle();
    /// The handle that comes next.
    std::string next_handle() const;
    const text_lines& lines() const { return lines_; }

  private:
    text_lines lines_;
    int last_handle_ = 0;
};

/// Writes the entities of one drawing into its model space. Lengths in mm are divided by
/// mm_per_unit.
class dxf_drawing {
  public:
    dxf_drawing(dxf_groups& out, std::string owner, double mm_per_unit)
        : out_(out), owner_(std::move(owner)), mm_per_unit_(mm_per_unit) {}

    /// A closed LWPOLYLINE of lines and arcs: bulge = tan(sweep / 4), positive counter-clockwise.
    void polyline(std::string_view layer, const exact_contour& contour);
    /// A closed SPLINE of splines that join without a kink: two equal knots at each joint.
    void spline(std::string_view layer, const exact_contour& contour);
    void circle(std::string_view layer, const point2& centre, double radius_mm);
    /// A cross of two LINEs with a POINT in the middle.
    void centre_mark(std::string_view layer, const point2& at, double half_mm);

  private:
    void begin(std::string_view type, std::string_view layer, std::string_view subclass);
    void length(int code, double mm) { out_.real(code, mm / mm_per_unit_); }
    void place(int code, const point2& at);
    void place3(int code, const point2& at);
    void line(std::string_view layer, const point2& from, const point2& to);

    dxf_groups& out_;
    std::string owner_;
    double mm_per_unit_;
};

}  // namespace kvt
