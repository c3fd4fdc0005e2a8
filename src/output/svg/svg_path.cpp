#include "output/svg/svg_path.hpp"

#include "base/fixed_number.hpp"

#include <cmath>
#include <numbers>

namespace kvt {

namespace {

std::string svg_place(const point2& at) {
    return svg_number(at.x) + "," + svg_number(-at.y);
}

std::string arc_data(const exact_piece& piece) {
    constexpr double LARGEST_PART = 2.0 * std::numbers::pi / 3.0;
    const double sweep = piece.sweep();
    const int parts = static_cast<int>(std::ceil(std::abs(sweep) / LARGEST_PART));
    const std::string radius = svg_number(piece.arc.radius);
    // Forward is counter-clockwise to the eye, which is against the angles of a page.
    const std::string form = "A" + radius + "," + radius + " 0 0 " + (sweep > 0.0 ? "0 " : "1 ");
    std::string data;
    for (int k = 1; k < parts; ++k) {
        data += form + svg_place(piece.arc.at(piece.arc.from + sweep * k / parts));
    }
    return data + form + svg_place(piece.end);
}

std::string spline_data(const cubic_spline& spline) {
    std::string data;
    for (std::size_t i = 0; i < spline.span_count(); ++i) {
        const auto controls = spline.bezier_of(i);
        data += "C" + svg_place(controls[1]) + " " + svg_place(controls[2]) + " " +
                svg_place(controls[3]);
    }
    return data;
}

std::string piece_data(const exact_piece& piece) {
    switch (piece.kind) {
        case piece_kind::line:
            break;
        case piece_kind::arc:
            return arc_data(piece);
        case piece_kind::spline:
            return spline_data(piece.spline);
    }
    return "L" + svg_place(piece.end);
}

}  // namespace

std::string svg_number(double mm) {
    constexpr int DECIMALS = 6;
    std::string text = fixed_number(mm, DECIMALS);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text;
}

std::string svg_path(const exact_contour& contour) {
    std::string data = "M" + svg_place(contour.front().start);
    for (const exact_piece& piece : contour) {
        data += piece_data(piece);
    }
    return data + "Z";
}

}  // namespace kvt
