#include "output/step/exact_step_solid.hpp"

#include <cmath>
#include <string>
#include <utility>

namespace kvt {

namespace {

std::string triple(double x, double y, double z) {
    return "('',(" + step_real(x) + "," + step_real(y) + "," + step_real(z) + "))";
}

int oriented_edge(exact_step_entities& entities, int edge, bool is_forward) {
    return entities.add("ORIENTED_EDGE('',*,*," + step_ref(edge) +
                        (is_forward ? ",.T.)" : ",.F.)"));
}

/// The entities along a contour, one a piece; material lies to its left.
struct contour_entities {
    std::vector<int> bottom_edges, top_edges, walls;
};

/// Writes one contour piece by piece.
class contour_writer {
  public:
    contour_writer(exact_step_entities& entities, const step_frame& frame, const pump_body& body,
                   const exact_contour& contour)
        : entities_(entities), frame_(frame), body_(body), contour_(contour) {}

    contour_entities run() {
        for (const exact_piece& piece : contour_) {
            write_upright(piece);
        }
        for (std::size_t i = 0; i < contour_.size(); ++i) {
            write_wall(i, (i + 1) % contour_.size());
        }
        return std::move(done_);
    }

  private:
    int add(const std::string& entity) { return entities_.add(entity); }

    int point(const point2& at, double z) { return add("CARTESIAN_POINT" + triple(at.x, at.y, z)); }

    int placement(int at, int axis, int reference) {
        return add("AXIS2_PLACEMENT_3D(''," + step_ref(at) + "," + step_ref(axis) + "," +
                   step_ref(reference) + ")");
    }

    int edge(int from, int to, int curve, bool is_along_curve) {
        return add("EDGE_CURVE(''," + step_ref(from) + "," + step_ref(to) + "," + step_ref(curve) +
                   (is_along_curve ? ",.T.)" : ",.F.)"));
    }

    int line(int from, int way) {
        return add("LINE(''," + step_ref(from) + "," + step_ref(way) + ")");
    }

    /// Both corners at the start of a piece and the edge between them.
    void write_upright(const exact_piece& piece) {
        const int low = point(piece.start, body_.bottom);
        const int high = point(piece.start, body_.top);
        points_.emplace_back(low, high);
        const int below = add("VERTEX_POINT(''," + step_ref(low) + ")");
        const int above = add("VERTEX_POINT(''," + step_ref(high) + ")");
        corners_.emplace_back(below, above);
        uprights_.push_back(edge(below, above, line(low, frame_.upwards), true));
    }

    /// A curve at the bottom and at the top, and the surface between them.
    struct wall_geometry {
        int bottom, top, surface;
        bool is_forward = true;  ///< the piece runs as its curves do; the surface faces outwards
    };

    wall_geometry of_line(const exact_piece& piece, const std::pair<int, int>& start) {
        const point2 way = difference(piece.end, piece.start);
        const double length = std::hypot(way.x, way.y);
        const point2 unit = {way.x / length, way.y / length};
        const int along = add("DIRECTION" + triple(unit.x, unit.y, 0.0));
        const int outwards = add("DIRECTION" + triple(unit.y, -unit.x, 0.0));
        const int vector = add("VECTOR(''," + step_ref(along) + ",1.)");
        const int bottom = line(start.first, vector);
        const int top = line(start.second, vector);
        const int at = placement(start.first, outwards, along);
        return {bottom, top, add("PLANE(''," + step_ref(at) + ")")};
    }

    wall_geometry of_arc(const true_arc& arc, bool is_forward) {
        const std::string radius = "," + step_real(arc.radius) + ")";
        const int low = placement(point(arc.centre, body_.bottom), frame_.up, frame_.along_x);
        const int high = placement(point(arc.centre, body_.top), frame_.up, frame_.along_x);
        const int bottom = add("CIRCLE(''," + step_ref(low) + radius);
        const int top = add("CIRCLE(''," + step_ref(high) + radius);
        return {bottom, top, add("CYLINDRICAL_SURFACE(''," + step_ref(low) + radius), is_forward};
    }

    int spline_at(const cubic_spline& spline, double z) {
        std::vector<int> controls;
        for (const point2& control : spline.controls()) {
            controls.push_back(point(control, z));
        }
        std::string counts, knots;
        for (std::size_t i = 0; i < spline.knots.size(); ++i) {
            const bool is_end = i == 0 || i == spline.span_count();
            counts += (i == 0 ? "" : ",") + std::string(is_end ? "4" : "1");
            knots += (i == 0 ? "" : ",") + step_real(spline.knots[i]);
        }
        return add("B_SPLINE_CURVE_WITH_KNOTS('',3," + step_refs(controls) +
                   ",.UNSPECIFIED.,.F.,.F.,(" + counts + "),(" + knots + "),.UNSPECIFIED.)");
    }

    wall_geometry of_spline(const cubic_spline& spline) {
        const int bottom = spline_at(spline, body_.bottom);
        const int top = spline_at(spline, body_.top);
        return {bottom, top,
                add("SURFACE_OF_LINEAR_EXTRUSION(''," + step_ref(bottom) + "," +
                    step_ref(frame_.upwards) + ")")};
    }

    wall_geometry geometry_of(std::size_t i) {
        const exact_piece& piece = contour_[i];
        switch (piece.kind) {
            case piece_kind::line:
                break;
            case piece_kind::arc:
                return of_arc(piece.arc, piece.sweep() > 0.0);
            case piece_kind::spline:
                return of_spline(piece.spline);
        }
        return of_line(piece, points_[i]);
    }

    void write_wall(std::size_t i, std::size_t next) {
        const wall_geometry wall = geometry_of(i);
        const int bottom =
            edge(corners_[i].first, corners_[next].first, wall.bottom, wall.is_forward);
        const int top = edge(corners_[i].second, corners_[next].second, wall.top, wall.is_forward);
        const std::vector<int> around = {
            oriented_edge(entities_, bottom, true), oriented_edge(entities_, uprights_[next], true),
            oriented_edge(entities_, top, false), oriented_edge(entities_, uprights_[i], false)};
        const int loop = add("EDGE_LOOP(''," + step_refs(around) + ")");
        const int bound = add("FACE_OUTER_BOUND(''," + step_ref(loop) + ",.T.)");
        done_.walls.push_back(add("ADVANCED_FACE(''," + step_refs({bound}) + "," +
                                  step_ref(wall.surface) + (wall.is_forward ? ",.T.)" : ",.F.)")));
        done_.bottom_edges.push_back(bottom);
        done_.top_edges.push_back(top);
    }

    exact_step_entities& entities_;
    const step_frame& frame_;
    const pump_body& body_;
    const exact_contour& contour_;
    std::vector<std::pair<int, int>> points_, corners_;  // bottom and top, at the starts
    std::vector<int> uprights_;
    contour_entities done_;
};

/// The loop of a cap along its contour; the bottom runs through it backwards.
int cap_loop(exact_step_entities& entities, const std::vector<int>& edges, bool is_top) {
    std::vector<int> along;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const int edge = is_top ? edges[i] : edges[edges.size() - 1 - i];
        along.push_back(oriented_edge(entities, edge, is_top));
    }
    return entities.add("EDGE_LOOP(''," + step_refs(along) + ")");
}

int write_cap(exact_step_entities& entities, const step_frame& frame, const pump_body& body,
              const std::vector<contour_entities>& contours, bool is_top) {
    std::vector<int> bounds;
    for (const contour_entities& contour : contours) {
        const int loop =
            cap_loop(entities, is_top ? contour.top_edges : contour.bottom_edges, is_top);
        bounds.push_back(entities.add((bounds.empty() ? "FACE_OUTER_BOUND(''," : "FACE_BOUND('',") +
                                      step_ref(loop) + ",.T.)"));
    }
    const int at =
        entities.add("CARTESIAN_POINT" + triple(0.0, 0.0, is_top ? body.top : body.bottom));
    const int placed = entities.add("AXIS2_PLACEMENT_3D(''," + step_ref(at) + "," +
                                    step_ref(is_top ? frame.up : frame.down) + "," +
                                    step_ref(frame.along_x) + ")");
    const int plane = entities.add("PLANE(''," + step_ref(placed) + ")");
    return entities.add("ADVANCED_FACE(''," + step_refs(bounds) + "," + step_ref(plane) + ",.T.)");
}

}  // namespace

step_frame write_step_frame(exact_step_entities& entities) {
    step_frame frame;
    frame.up = entities.add("DIRECTION" + triple(0.0, 0.0, 1.0));
    frame.down = entities.add("DIRECTION" + triple(0.0, 0.0, -1.0));
    frame.along_x = entities.add("DIRECTION" + triple(1.0, 0.0, 0.0));
    frame.upwards = entities.add("VECTOR(''," + step_ref(frame.up) + ",1.)");
    const int origin = entities.add("CARTESIAN_POINT" + triple(0.0, 0.0, 0.0));
    frame.placement = entities.add("AXIS2_PLACEMENT_3D(''," + step_ref(origin) + "," +
                                   step_ref(frame.up) + "," + step_ref(frame.along_x) + ")");
    return frame;
}

int write_step_solid(exact_step_entities& entities, const step_frame& frame,
                     const pump_body& body) {
    std::vector<contour_entities> contours;
    for (const exact_contour* contour : {&body.outline, &body.hole}) {
        if (!contour->empty()) {
            contours.push_back(contour_writer(entities, frame, body, *contour).run());
        }
    }
    std::vector<int> faces = {write_cap(entities, frame, body, contours, false),
                              write_cap(entities, frame, body, contours, true)};
    for (const contour_entities& contour : contours) {
        faces.insert(faces.end(), contour.walls.begin(), contour.walls.end());
    }
    const int shell = entities.add("CLOSED_SHELL(''," + step_refs(faces) + ")");
    return entities.add("MANIFOLD_SOLID_BREP(" + step_string(body.name) + "," + step_ref(shell) +
                        ")");
}

}  // namespace kvt
