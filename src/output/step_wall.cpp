#include "output/step_wall.hpp"

#include "core/plain_number.hpp"
#include "output/step_entities.hpp"

#include <cassert>

namespace kvt {

namespace {

constexpr std::size_t SMALLEST_CONTOUR = 6;

/// Knot k = 0 .. m - 3 of a half with m control points: c + k 0.5/(F/2), c being 0.5 on the first half, 0 on the
/// second. Kept: the last knot ends before the other half's first one.
std::string knots_text(std::size_t control_count, double c, double point_count) {
    std::string text;
    for (std::size_t k = 0; k + 2 < control_count; ++k) {
        text += k == 0 ? "" : ", ";
        text += plain_number_text(c + static_cast<double>(k) * 0.5 / (point_count / 2.0));
    }
    return text;
}

}  // namespace

step_wall::step_wall(text_lines& out, const std::vector<point2>& contour, double bottom, double depth, int first_point,
                     int offset)
    : out_(out),
      middle_(contour.size() / 2),
      bottom_(bottom),
      depth_(depth),
      first_point_(first_point),
      offset_(offset) {
    assert(contour.size() >= SMALLEST_CONTOUR);
    places_.reserve(contour.size());
    for (const point2& point : contour) {
        places_.push_back(plain_number_text(point.x) + ", " + plain_number_text(point.y));
    }
    const auto point_count = static_cast<double>(contour.size());
    knots_[0] = knots_text(middle_ + 1, 0.5, point_count);
    knots_[1] = knots_text(contour.size() - middle_ + 1, 0.0, point_count);
}

void step_wall::append_control_point(std::size_t index, int layer) {
    const std::size_t wrapped = index == places_.size() ? 0 : index;
    append_reference(line_,
                     first_point_ + offset_ + layer * static_cast<int>(places_.size()) + static_cast<int>(wrapped));
}

void step_wall::append_multiplicities(wall_half half) {
    const std::size_t control_count = end_of(half) - begin_of(half) + 1;
    line_ += "( 4, ";
    for (std::size_t inner = 4; inner < control_count; ++inner) {
        line_ += "1, ";
    }
    line_ += "4 ),";
}

void step_wall::append_knots(wall_half half) {
    line_ += "( ";
    line_ += knots_[half == wall_half::first ? 0 : 1];
    line_ += "),";
}

void step_wall::write_points() {
    int number = first_point_ + offset_;
    for (int layer = 0; layer < WALL_LAYER_COUNT; ++layer) {
        const std::string tail = ", " + plain_number_text(bottom_ + layer * depth_ / 3.0) + " ) ) ;";
        for (const std::string& place : places_) {
            line_.clear();
            append_reference(line_, number++);
            line_ += " = CARTESIAN_POINT ( 'NONE',  ( ";
            line_ += place;
            line_ += tail;
            out_.raw_line(line_);
        }
    }
}

void step_wall::write_curve(int number, wall_half half, int layer) {
    line_.clear();
    append_reference(line_, number + offset_);
    line_ += " = B_SPLINE_CURVE_WITH_KNOTS ( 'NONE', 3, ( ";
    for (std::size_t index = begin_of(half); index <= end_of(half); ++index) {
        line_ += index == begin_of(half) ? "" : ", ";
        append_control_point(index, layer);
    }
    line_ += " ), .UNSPECIFIED., .F., .F., ";
    append_multiplicities(half);
    line_ += ' ';
    append_knots(half);
    line_ += " .UNSPECIFIED. ) ;";
    out_.raw_line(line_);
}

void step_wall::write_surface(int number, wall_half half) {
    line_.clear();
    append_reference(line_, number + offset_);
    line_ += " = B_SPLINE_SURFACE_WITH_KNOTS ( 'NONE', 3, 3, (";
    out_.raw_line(line_);
    for (std::size_t index = begin_of(half); index <= end_of(half); ++index) {
        line_ = " ( ";
        for (int layer = WALL_LAYER_COUNT - 1; layer >= 0; --layer) {
            append_control_point(index, layer);
            line_ += layer == 0 ? "" : ", ";
        }
        line_ += index == end_of(half) ? " ) )," : " ),";
        out_.raw_line(line_);
    }
    out_.raw_line(" .UNSPECIFIED., .F., .F., .F.,");
    line_ = " ";
    append_multiplicities(half);
    out_.raw_line(line_);
    out_.raw_line(" ( 4, 4 ),");
    line_ = " ";
    append_knots(half);
    out_.raw_line(line_);
    out_.raw_line(" ( 0, 1 ),");
    out_.raw_line(" .UNSPECIFIED. ) ;");
}

}  // namespace kvt
