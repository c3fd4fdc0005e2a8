// Tests of the SVG files: an interpreter of the paths measures what a viewer draws.
#include "output/svg/svg_files.hpp"

#include "exact/pump_contours.hpp"
#include "support/cnc_design.hpp"
#include "support/random_design.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace kvt {
namespace {

/// Follows a path as the standard says and gathers the area within, y downwards.
class path_walk {
  public:
    explicit path_walk(const std::string& data) : rest_(separated(data)) {}

    double area() {
        std::string command;
        while (rest_ >> command) {
            if (command == "M") {
                at_ = first_ = place();
            } else if (command == "L") {
                line_to(place());
            } else if (command == "A") {
                arc_to();
            } else if (command == "C") {
                const point2 b = place(), c = place(), d = place();
                curve_to(b, c, d);
            } else {
                EXPECT_EQ(command, "Z");
                line_to(first_);
            }
        }
        EXPECT_LT(distance(at_, first_), 1e-5) << "closed by its own pieces";
        return area_;
    }

  private:
    static std::istringstream separated(const std::string& data) {
        const std::string spaced = std::regex_replace(data, std::regex("([MLACZ])"), " $1 ");
        return std::istringstream(std::regex_replace(spaced, std::regex(","), " "));
    }

    point2 place() {
        point2 read;
        EXPECT_TRUE(rest_ >> read.x >> read.y);
        return read;
    }

    void line_to(const point2& end) {
        area_ += 0.5 * (at_.x * end.y - end.x * at_.y);
        at_ = end;
    }

    void arc_to() {
        double rx = 0.0, ry = 0.0, turn = 0.0;
        int large = 0, positive = 0;
        EXPECT_TRUE(rest_ >> rx >> ry >> turn >> large >> positive);
        const point2 start = at_;
        const point2 end = place();
        EXPECT_EQ(rx, ry);
        EXPECT_EQ(large, 0);
        const double half = 0.5 * distance(start, end);
        EXPECT_LE(half, rx);
        const double angle = 2.0 * std::asin(std::min(1.0, half / rx));
        const double segment = 0.5 * rx * rx * (angle - std::sin(angle));
        line_to(end);
        area_ += positive == 1 ? segment : -segment;
    }

    void curve_to(const point2& b, const point2& c, const point2& d) {
        area_ += bezier_sweep({at_, b, c, d});
        at_ = d;
    }

    std::istringstream rest_;
    point2 first_, at_;
    double area_ = 0.0;
};

struct drawn_path {
    std::string id, classes, data;
};

/// What stands between the two texts behind `at`, which goes on behind the second one.
std::string between(const std::string& bytes, std::size_t& at, std::string_view before,
                    std::string_view behind) {
    const std::size_t from = bytes.find(before, at) + before.size();
    const std::size_t to = bytes.find(behind, from);
    at = to + behind.size();
    return bytes.substr(from, to - from);
}

/// A regular expression would call itself for each character of a path.
std::vector<drawn_path> paths_of(const std::string& bytes) {
    std::vector<drawn_path> paths;
    for (std::size_t at = bytes.find("<path "); at != std::string::npos;
         at = bytes.find("<path ", at)) {
        drawn_path path;
        path.id = between(bytes, at, "<path id=\"", "\"");
        path.classes = between(bytes, at, " class=\"", "\"");
        path.data = between(bytes, at, " d=\"", "\"/>");
        paths.push_back(path);
    }
    return paths;
}

std::string svg_bytes(const program& kavetta, std::string_view name) {
    return file_bytes(kavetta, file_group::svg, name);
}

TEST(svg_files, begin_with_their_size_in_millimetres) {
    const program kavetta = design_with_ports("n04_fuel");
    const std::string bytes = svg_bytes(kavetta, "outer");
    const double rim = kavetta.design_params.maxdiameter;
    std::smatch size;
    ASSERT_TRUE(std::regex_search(
        bytes, size,
        std::regex(R"x(width="(\d+)mm" height="(\d+)mm" viewBox="(-?\d+) (-?\d+) (\d+) (\d+)")x")));
    EXPECT_EQ(size[1], size[5]);
    EXPECT_EQ(size[2], size[6]);
    EXPECT_GT(std::stod(size[1]), rim + 2.0 - 1e-9);
    EXPECT_LT(std::stod(size[1]), rim + 5.0);
    EXPECT_NE(bytes.find("prefers-color-scheme:dark"), std::string::npos);
    EXPECT_TRUE(
        std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; }));
}

TEST(svg_files, draw_the_exact_areas) {
    random_values random;
    for (int i = 0; i < property_count(40); ++i) {
        SCOPED_TRACE(i);
        const program kavetta = random_design(random);
        const auto contours =
            whole_pump_contours(kavetta.design_params, kavetta.port_params, kavetta.entries);
        const auto paths = paths_of(svg_bytes(kavetta, "ports"));
        ASSERT_EQ(paths.size(), contours.size());
        for (std::size_t k = 0; k < paths.size(); ++k) {
            EXPECT_EQ(paths[k].id, name_of(contours[k].part));
            EXPECT_EQ(paths[k].classes, "contour " + paths[k].id);
            // Six decimals; upside down, so that forward areas are negative.
            const double area = enclosed_area(contours[k].contour);
            EXPECT_NEAR(-path_walk(paths[k].data).area(), area, 1e-6 * area + 1e-4) << paths[k].id;
        }
    }
}

TEST(svg_files, have_a_path_a_contour) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    const auto count = [&](const char* name) { return paths_of(svg_bytes(kavetta, name)).size(); };
    EXPECT_EQ(count("inner"), 1U);
    EXPECT_EQ(count("outer"), 2U);
    EXPECT_EQ(count("inlet"), 1U);
    EXPECT_EQ(count("outlet"), 1U);
    EXPECT_EQ(count("groove"), 1U);
    EXPECT_EQ(count("pair"), 3U);
    EXPECT_EQ(count("ports"), 6U);
}

}  // namespace
}  // namespace kvt
