// A small interpreter of the CNC files: it reads them line by line and sweeps the path that a
// machine would follow.
#pragma once

#include "geometry/point2.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// A line with coordinates: code 0 is a plain X/Y line, 1 to 3 are G01 to G03.
struct cnc_move {
    int code = 0;
    point2 end;
    double radius = 0.0;   ///< R of an arc
    double degrees = 0.0;  ///< C of a lathe line, whose X stands in end.x
    bool lathe = false;
    bool cutting =
        false;  ///< behind the line that moves the tool down, before the one that moves it up
};

/// The lines between two heads; the comments of the head stand in front of its moves.
struct cnc_section {
    std::vector<std::string> comments;
    std::vector<cnc_move> moves;
};

class cnc_reader {
  public:
    /// Throws std::runtime_error for a line that no writer may write, with its number.
    cnc_reader(std::string_view bytes, int decimals) : decimals_(decimals) {
        for (int number = 1; !bytes.empty(); ++number) {
            const std::size_t end = bytes.find("\r\n");
            if (end == std::string_view::npos) {
                throw std::runtime_error("the last line has no end");
            }
            try {
                read_line(bytes.substr(0, end));
            } catch (const std::runtime_error& error) {
                throw std::runtime_error("line " + std::to_string(number) + ": " + error.what());
            }
            bytes.remove_prefix(end + 2);
        }
    }

    const std::vector<cnc_section>& sections() const { return sections_; }
    /// How often the tool went down and came up again.
    int tool_changes() const { return tool_changes_; }

  private:
    void read_line(std::string_view line) {
        if (line.starts_with("//")) {
            read_comment(line);
            return;
        }
        if (sections_.empty()) {
            sections_.emplace_back();
        }
        cnc_move move;
        if (line.starts_with("G0")) {
            move.code = line.at(2) - '0';
            line.remove_prefix(3);
        }
        move.end.x = word(line, 'X');
        move.lathe = line.starts_with("C");
        (move.lathe ? move.degrees : move.end.y) = word(line, move.lathe ? 'C' : 'Y');
        if (move.code == 2 || move.code == 3) {
            move.radius = word(line, 'R');
        }
        move.cutting = cutting_;
        if (!line.empty() || move.code > 3) {
            throw std::runtime_error("not a line of coordinates");
        }
        sections_.back().moves.push_back(move);
    }

    void read_comment(std::string_view line) {
        const bool down =
            line.find("TOOL DOWN") != line.npos || line.find("WERKZEUG HINUNTER") != line.npos;
        const bool up = line.find("TOOL UP") != line.npos || line.find("WERKZEUG AUS") != line.npos;
        if (down || up) {
            if (cutting_ == down) {
                throw std::runtime_error("the tool is there already");
            }
            cutting_ = down;
            ++tool_changes_;
            return;
        }
        if (sections_.empty() || !sections_.back().moves.empty()) {
            sections_.emplace_back();
        }
        sections_.back().comments.emplace_back(line);
    }

    /// A letter and a number with the decimals of the file; the literal last line of the outer
    /// rotor has four.
    double word(std::string_view& line, char letter) const {
        if (!line.starts_with(letter)) {
            throw std::runtime_error(std::string("no ") + letter);
        }
        line.remove_prefix(1);
        double value = 0.0;
        const auto read = std::from_chars(line.data(), line.data() + line.size(), value,
                                          std::chars_format::fixed);
        const std::string_view text(line.data(), static_cast<std::size_t>(read.ptr - line.data()));
        const std::size_t point = text.find('.');
        if (point == text.npos || point == 0 ||
            (text.front() == '-' && (point == 1 || value == 0.0))) {
            throw std::runtime_error("a number in another form: " + std::string(text));
        }
        const auto decimals = static_cast<int>(text.size() - point - 1);
        if (decimals != decimals_ && text != "0.0000") {
            throw std::runtime_error("other decimals: " + std::string(text));
        }
        line.remove_prefix(text.size());
        return value;
    }

    int decimals_;
    bool cutting_ = false;
    int tool_changes_ = 0;
    std::vector<cnc_section> sections_;
};

/// The ends of the moves.
inline std::vector<point2> ends_of(const cnc_section& section) {
    std::vector<point2> ends;
    for (const cnc_move& move : section.moves) {
        ends.push_back(move.end);
    }
    return ends;
}

/// The points of an arc from start, without it, the short way round, at least every quarter degree.
inline std::vector<point2> swept_arc(point2 start, const cnc_move& move) {
    const double dx = move.end.x - start.x;
    const double dy = move.end.y - start.y;
    const double chord = std::hypot(dx, dy);
    if (chord > 2.0 * move.radius + 0.01) {
        throw std::runtime_error("an arc that does not reach its end: chord " +
                                 std::to_string(chord) + " radius " + std::to_string(move.radius));
    }
    const double turn = move.code == 3 ? 1.0 : -1.0;
    const double height = std::sqrt(std::max(move.radius * move.radius - chord * chord / 4.0, 0.0));
    const double nx = chord > 0.0 ? -dy / chord : 0.0;
    const double ny = chord > 0.0 ? dx / chord : 0.0;
    const point2 centre = {(start.x + move.end.x) / 2.0 + turn * nx * height,
                           (start.y + move.end.y) / 2.0 + turn * ny * height};
    const double sweep = 2.0 * std::asin(std::min(chord / (2.0 * move.radius), 1.0)) * turn;
    const double first = std::atan2(start.y - centre.y, start.x - centre.x);
    const int steps = 1 + static_cast<int>(std::abs(sweep) * 180.0 / 3.14159265358979 * 4.0);
    std::vector<point2> points;
    for (int k = 1; k < steps; ++k) {
        const double angle = first + sweep * k / steps;
        points.push_back(
            {centre.x + move.radius * std::cos(angle), centre.y + move.radius * std::sin(angle)});
    }
    points.push_back(move.end);
    return points;
}

/// The path of the cutting moves (of all moves when the file knows no tool down), arcs as fine
/// polygons. The first point is where the path starts.
inline std::vector<point2> swept_path(const std::vector<cnc_move>& moves, point2 start) {
    std::vector<point2> path{start};
    for (const cnc_move& move : moves) {
        if (move.code == 2 || move.code == 3) {
            const std::vector<point2> arc = swept_arc(path.back(), move);
            path.insert(path.end(), arc.begin(), arc.end());
        } else {
            path.push_back(move.end);
        }
    }
    return path;
}

/// Distance of a point from a polyline.
inline double distance_from_path(point2 point, const std::vector<point2>& path) {
    double smallest = 1e300;
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
        const double dx = path[i + 1].x - path[i].x;
        const double dy = path[i + 1].y - path[i].y;
        const double px = point.x - path[i].x;
        const double py = point.y - path[i].y;
        const double length2 = dx * dx + dy * dy;
        const double share =
            length2 > 0.0 ? std::clamp((px * dx + py * dy) / length2, 0.0, 1.0) : 0.0;
        const double ex = px - share * dx;
        const double ey = py - share * dy;
        smallest = std::min(smallest, ex * ex + ey * ey);
    }
    return std::sqrt(smallest);
}

/// The largest distance of every stride-th point from a path.
inline double largest_distance(const std::vector<point2>& points, const std::vector<point2>& path,
                               std::size_t stride = 1) {
    double largest = 0.0;
    for (std::size_t i = 0; i < points.size(); i += stride) {
        largest = std::max(largest, distance_from_path(points[i], path));
    }
    return largest;
}

}  // namespace kvt
