#include "output/step/step_wall.hpp"

#include "base/plain_number.hpp"
#include "base/run_time_error.hpp"
#include "output/step/step_entities.hpp"

namespace kvt {

namespace {

/// About so many bytes of text come from one point of the contour: four control points, their
/// references, its knots.
constexpr std::size_t BYTES_PER_POINT = 520;

/// Knot k = 0 .. m - 3 of a half with m control points: c + k 0.5/(F/2), c being 0.5 on the first
/// half, 0 on the second. Kept: the last knot ends before the other half's first one;
/// step_wall_test holds it.
std::string knots_text(std::size_t control_count, double c, double point_count) {
    std::string text;
    for (std::size_t k = 0; k + 2 < control_count; ++k) {
        text += k == 0 ? "" : ", ";
        text += plain_number_text(c + static_cast<double>(k) * 0.5 / (point_count / 2.0));
    }
    return text;
}

}  // namespace

step_wall::step_wall(text_lines& out, const std::vector<point2>& contour, double bottom,
                     double depth, int first_point, int offset)
    : out_(out),
      middle_(contour.size() / 2),
      bottom_(bottom),
      depth_(depth),
      first_point_(first_point),
      offset_(offset) {
    if (contour.size() < SMALLEST_CONTOUR) {
        throw run_time_error(failure::subscript_out_of_range,
                             "contour of " + std::to_string(contour.size()));
    }
    out.reserve(out.bytes().size() + BYTES_PER_POINT * contour.size());
    places_.reserve(contour.size());
    for (const point2& point : contour) {
        places_.push_back(plain_number_text(point.x) + ", " + plain_number_text(point.y));
    }
    const auto point_count = static_cast<double>(contour.size());
    knots_[0] = knots_text(middle_ + 1, 0.5, point_count);
    knots_[1] = knots_text(contour.size() - middle_ + 1, 0.0, point_count);
}

void step_wall::write(const wall_numbers& numbers) {
    constexpr int TOP = WALL_LAYER_COUNT - 1;
    write_points();
    write_curve(numbers.first_top, wall_half::first, TOP);
    write_curve(numbers.first_bottom, wall_half::first, 0);
    write_curve(numbers.second_top, wall_half::second, TOP);
    write_curve(numbers.second_bottom, wall_half::second, 0);
    write_surface(numbers.first_surface, wall_half::first);
    write_surface(numbers.second_surface, wall_half::second);
}

void step_wall::write_control_point(std::size_t index, int layer) {
    const std::size_t wrapped = index == places_.size() ? 0 : index;
    write_reference(out_, first_point_ + offset_ + layer * static_cast<int>(places_.size()) +
                              static_cast<int>(wrapped));
}

void step_wall::write_multiplicities(wall_half half) {
    const std::size_t control_count = end_of(half) - begin_of(half) + 1;
    out_.raw_part("( 4, ");
    for (std::size_t inner = 4; inner < control_count; ++inner) {
        out_.raw_part("1, ");
    }
    out_.raw_part("4 ),");
}

void step_wall::write_knots(wall_half half) {
    out_.raw_part("( ");
    out_.raw_part(knots_[half == wall_half::first ? 0 : 1]);
    out_.raw_part("),");
}

void step_wall::write_points() {
    int number = first_point_ + offset_;
    for (int layer = 0; layer < WALL_LAYER_COUNT; ++layer) {
        const std::string tail =
            ", " + plain_number_text(bottom_ + layer * depth_ / 3.0) + " ) ) ;";
        for (const std::string& place : places_) {
            write_reference(out_, number++);
            out_.raw_part(" = CARTESIAN_POINT ( 'NONE',  ( ");
            out_.raw_part(place);
            out_.raw_part(tail);
            out_.end_line();
        }
    }
}

void step_wall::write_curve(int number, wall_half half, int layer) {
    write_reference(out_, number + offset_);
    out_.raw_part(" = B_SPLINE_CURVE_WITH_KNOTS ( 'NONE', 3, ( ");
    for (std::size_t index = begin_of(half); index <= end_of(half); ++index) {
        out_.raw_part(index == begin_of(half) ? "" : ", ");
        write_control_point(index, layer);
    }
    out_.raw_part(" ), .UNSPECIFIED., .F., .F., ");
    write_multiplicities(half);
    out_.raw_part(" ");
    write_knots(half);
    out_.raw_line(" .UNSPECIFIED. ) ;");
}

void step_wall::write_surface_row(std::size_t index, std::string_view end) {
    out_.raw_part(" ( ");
    for (int layer = WALL_LAYER_COUNT - 1; layer > 0; --layer) {
        write_control_point(index, layer);
        out_.raw_part(", ");
    }
    write_control_point(index, 0);
    out_.raw_line(end);
}

void step_wall::write_surface(int number, wall_half half) {
    write_reference(out_, number + offset_);
    out_.raw_line(" = B_SPLINE_SURFACE_WITH_KNOTS ( 'NONE', 3, 3, (");
    for (std::size_t index = begin_of(half); index < end_of(half); ++index) {
        write_surface_row(index, " ),");
    }
    write_surface_row(end_of(half), " ) ),");
    out_.raw_line(" .UNSPECIFIED., .F., .F., .F.,");
    out_.raw_part(" ");
    write_multiplicities(half);
    out_.end_line();
    out_.raw_line(" ( 4, 4 ),");
    out_.raw_part(" ");
    write_knots(half);
    out_.end_line();
    out_.raw_line(" ( 0, 1 ),");
    out_.raw_line(" .UNSPECIFIED. ) ;");
}

}  // namespace kvt
