// A small structural reader of STEP files for tests: entities and their references, solids with
// their contours.
#pragma once

#include "geometry/point2.hpp"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kvt {

struct step_entity {
    std::string_view text;        ///< behind "#n =", up to its semicolon
    std::vector<int> references;  ///< the numbers behind "#" in it, in their order
    std::string_view keyword() const;
};

/// A closed contour of spline curves at one height: its control points.
struct step_contour {
    double z = 0.0;
    std::vector<point2> points;
};

struct step_solid {
    std::string name;
    std::vector<step_contour> contours;  ///< bottom first
    std::vector<double> circle_radii;
};

/// Reads the text at once; the text must outlive the reader. Throws std::runtime_error for what it
/// doesn't understand: a line without its CR LF, a number twice, a statement without its semicolon,
/// a missing section.
class step_reader {
  public:
    explicit step_reader(std::string_view bytes);

    const std::vector<std::string>& header() const { return header_; }
    std::size_t entity_count() const { return entities_.size(); }
    const step_entity& entity(int number) const;
    const std::vector<int>& numbers_of(const std::string& keyword) const;

    /// References to entities that don't exist.
    std::vector<int> unresolved() const;
    /// EDGE_CURVEs that are not used by exactly two ORIENTED_EDGEs.
    std::vector<int> edges_not_used_twice() const;
    /// What is wrong with spline curves and surfaces: multiplicities that don't sum to the control
    /// points plus four, knots that don't ascend or of another count, surfaces whose borders are no
    /// curve's control points. Empty when all is well.
    std::vector<std::string> spline_problems() const;
    /// Spline faces whose outward side, by the row order of their control points and their sense,
    /// lies to the right of a counter-clockwise contour (walls of prisms do) or to its left (a bore
    /// does): "#13 right", "#26 left".
    std::vector<std::string> wall_sides() const;
    std::vector<step_solid> solids() const;

  private:
    void read_statement(std::string_view statement);
    std::vector<int> closure(int number) const;
    std::vector<double> numbers_in(std::string_view text) const;
    std::vector<double> point(int number) const;
    std::vector<step_contour> contours_of(const std::vector<int>& curves) const;

    std::vector<std::string> header_;
    std::unordered_map<int, step_entity> entities_;
    std::vector<int> order_;
    std::unordered_map<std::string, std::vector<int>> by_keyword_;
};

/// Area within the points, positive when they run counter-clockwise.
double signed_area(const std::vector<point2>& points);

}  // namespace kvt
