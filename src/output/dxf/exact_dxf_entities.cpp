#include "output/dxf/exact_dxf_entities.hpp"

#include "base/plain_number.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace kvt {

namespace {

/// Knots and control points of splines that follow each other with equal slopes.
struct joined_spline {
    std::vector<double> knots;  ///< each as often as it counts
    std::vector<point2> controls;
};

joined_spline joined(const exact_contour& contour) {
    joined_spline whole{{0.0, 0.0}, {contour.front().start}};
    double at = 0.0;
    for (const exact_piece& piece : contour) {
        const std::vector<double>& knots = piece.spline.knots;
        whole.knots.insert(whole.knots.end(), {at, at});
        for (std::size_t i = 1; i + 1 < knots.size(); ++i) {
            whole.knots.push_back(at + knots[i] - knots.front());
        }
        at += knots.back() - knots.front();
        // A joint lies on the line between its neighbours and needs no control point of its own.
        const std::vector<point2> controls = piece.spline.controls();
        whole.controls.insert(whole.controls.end(), controls.begin() + 1, controls.end() - 1);
    }
    whole.knots.insert(whole.knots.end(), {at, at, at, at});
    whole.controls.push_back(contour.back().end);
    return whole;
}

std::string hex_text(int value) {
    std::array<char, 16> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, 16).ptr;
    std::string digits(text.data(), end);
    for (char& digit : digits) {
        digit = digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
    }
    return digits;
}

}  // namespace

void dxf_groups::group(int code, std::string_view value) {
    const std::string number = std::to_string(code);
    lines_.raw_part(std::string(number.size() < 3 ? 3 - number.size() : 0, ' '));
    lines_.raw_line(number);
    lines_.raw_line(value);
}

void dxf_groups::whole(int code, int value) {
    group(code, std::to_string(value));
}

void dxf_groups::real(int code, double value) {
    std::string text = plain_number_text(value);
    text += text.find('.') == std::string::npos ? ".0" : "";
    group(code, text);
}

std::string dxf_groups::handle() {
    const std::string text = next_handle();
    ++last_handle_;
    group(5, text);
    return text;
}

std::string dxf_groups::next_handle() const {
    return hex_text(last_handle_ + 1);
}

void dxf_drawing::begin(std::string_view type, std::string_view layer, std::string_view subclass) {
    out_.group(0, type);
    out_.handle();
    out_.group(330, owner_);
    out_.group(100, "AcDbEntity");
    out_.group(8, layer);
    out_.group(100, subclass);
}

void dxf_drawing::place(int code, const point2& at) {
    length(code, at.x);
    length(code + 10, at.y);
}

void dxf_drawing::place3(int code, const point2& at) {
    place(code, at);
    out_.real(code + 20, 0.0);
}

void dxf_drawing::polyline(std::string_view layer, const exact_contour& contour) {
    begin("LWPOLYLINE", layer, "AcDbPolyline");
    out_.whole(90, static_cast<int>(contour.size()));
    out_.whole(70, 1);  // closed
    for (const exact_piece& piece : contour) {
        place(10, piece.start);
        if (piece.kind == piece_kind::arc) {
            out_.real(42, std::tan(piece.sweep() / 4.0));
        }
    }
}

void dxf_drawing::spline(std::string_view layer, const exact_contour& contour) {
    const joined_spline whole = joined(contour);
    begin("SPLINE", layer, "AcDbSpline");
    out_.real(210, 0.0);
    out_.real(220, 0.0);
    out_.real(230, 1.0);
    out_.whole(70, 8 + 1);  // in a plane, closed
    out_.whole(71, 3);      // degree
    out_.whole(72, static_cast<int>(whole.knots.size()));
    out_.whole(73, static_cast<int>(whole.controls.size()));
    out_.whole(74, 0);  // no fit points
    for (const double knot : whole.knots) {
        out_.real(40, knot);
    }
    for (const point2& control : whole.controls) {
        place3(10, control);
    }
}

void dxf_drawing::circle(std::string_view layer, const point2& centre, double radius_mm) {
    begin("CIRCLE", layer, "AcDbCircle");
    place3(10, centre);
    length(40, radius_mm);
}

void dxf_drawing::line(std::string_view layer, const point2& from, const point2& to) {
    begin("LINE", layer, "AcDbLine");
    place3(10, from);
    place3(11, to);
}

void dxf_drawing::centre_mark(std::string_view layer, const point2& at, double half_mm) {
    line(layer, {at.x - half_mm, at.y}, {at.x + half_mm, at.y});
    line(layer, {at.x, at.y - half_mm}, {at.x, at.y + half_mm});
    begin("POINT", layer, "AcDbPoint");
    place3(10, at);
}

}  // namespace kvt
