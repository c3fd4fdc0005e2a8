#include "exact/section_mesh.hpp"

#include "exact/polygon_triangles.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace kvt {

namespace {

using index_list = std::vector<std::uint32_t>;

constexpr double TURN = 2.0 * std::numbers::pi;

/// Parts of an arc whose chords lie within a distance of it: r (1 - cos(part / 2)) <= error.
int arc_parts(double radius, double sweep, double chord_error) {
    const double part = 2.0 * std::acos(std::max(0.0, 1.0 - chord_error / radius));
    return std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / part)));
}

/// Grows a section: points, closed lines around it, and the polygons that fill it.
struct flat_section {
    std::vector<point2> points;
    std::vector<index_list> rims;      ///< material to the left
    std::vector<index_list> polygons;  ///< counter-clockwise, together the whole section

    std::uint32_t add(const point2& point) {
        points.push_back(point);
        return static_cast<std::uint32_t>(points.size() - 1);
    }

    /// The points of a piece but its end, at least `least` lines; answers their indices.
    index_list add(const exact_piece& piece, double chord_error, int least = 1) {
        index_list added = {add(piece.start)};
        if (piece.kind == piece_kind::arc) {
            int parts = std::max(least, arc_parts(piece.arc.radius, piece.sweep(), chord_error));
            parts += parts % least;
            for (int k = 1; k < parts; ++k) {
                added.push_back(add(piece.arc.at(piece.arc.from + piece.sweep() * k / parts)));
            }
        }
        return added;
    }
};

void append(index_list& list, const index_list& more) {
    list.insert(list.end(), more.begin(), more.end());
}

body_mesh between_planes(const flat_section& section, double bottom, double top) {
    body_mesh mesh;
    const auto raised = static_cast<std::uint32_t>(section.points.size());
    for (const double z : {bottom, top}) {
        for (const point2& point : section.points) {
            mesh.points.push_back({point.x, point.y, z});
        }
    }
    for (const index_list& polygon : section.polygons) {
        for (const auto& [a, b, c] : triangles_of(section.points, polygon)) {
            mesh.triangles.push_back({a, c, b});
            mesh.triangles.push_back({a + raised, b + raised, c + raised});
        }
    }
    for (const index_list& rim : section.rims) {
        for (std::size_t i = 0; i < rim.size(); ++i) {
            const std::uint32_t a = rim[i], b = rim[(i + 1) % rim.size()];
            mesh.triangles.push_back({a, b, b + raised});
            mesh.triangles.push_back({a, b + raised, a + raised});
        }
    }
    return mesh;
}

/// An arc about the outer rotor's axis.
bool is_root_of(const design_params& design, const exact_piece& piece) {
    return distance(piece.arc.centre, {-design.ecc, 0.0}) < 1e-9;
}

/// Where the outer rotor is cut into one polygon a lobe: in the middle of its roots, or where no
/// root is left, at the place farthest out.
struct lobe_cuts {
    index_list bore;                ///< points of the bore, clockwise
    std::vector<std::size_t> cuts;  ///< their places in it, one a lobe
};

lobe_cuts add_bore(flat_section& section, const design_params& design, double chord_error) {
    const exact_contour contour = reversed_contour(outer_rotor_arcs(design));
    const std::size_t per_lobe = contour.size() / static_cast<std::size_t>(design.numlobes);
    const bool has_roots = std::ranges::any_of(
        contour, [&design](const exact_piece& piece) { return is_root_of(design, piece); });
    lobe_cuts done;
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const exact_piece& piece = contour[i];
        const bool is_root = is_root_of(design, piece);
        const index_list added = section.add(piece, chord_error, is_root ? 2 : 1);
        if (is_root) {
            done.cuts.push_back(done.bore.size() + added.size() / 2);
        } else if (!has_roots && i % per_lobe == per_lobe - 1) {
            done.cuts.push_back(done.bore.size());
        }
        append(done.bore, added);
    }
    return done;
}

/// The points of the rim from the angle of one cut down to that of the next, clockwise, the last
/// one left out.
index_list add_rim(flat_section& section, const design_params& design, double from, double sweep,
                   double chord_error) {
    const true_arc arc{{-design.ecc, 0.0}, design.maxdiameter / 2.0, from, from + sweep};
    return section.add({piece_kind::arc, arc.at(from), arc.at(arc.to), arc, {}}, chord_error);
}

double angle_about_axis(const design_params& design, const point2& point) {
    return std::atan2(point.y, point.x + design.ecc);
}

flat_section outer_rotor_section(const design_params& design, double chord_error) {
    flat_section section;
    const lobe_cuts bore = add_bore(section, design, chord_error);
    const std::size_t lobes = bore.cuts.size();
    std::vector<index_list> rim;
    for (std::size_t k = 0; k < lobes; ++k) {
        const double angle = angle_about_axis(design, section.points[bore.bore[bore.cuts[k]]]);
        rim.push_back(
            add_rim(section, design, angle, -TURN / static_cast<double>(lobes), chord_error));
    }
    index_list whole_rim;
    for (std::size_t k = 0; k < lobes; ++k) {
        // Along the bore with the material to the left, out to the rim, back along it.
        index_list polygon;
        const std::size_t next = (k + 1) % lobes;
        for (std::size_t i = bore.cuts[k];; i = (i + 1) % bore.bore.size()) {
            polygon.push_back(bore.bore[i]);
            if (i == bore.cuts[next]) {
                break;
            }
        }
        polygon.push_back(rim[next].front());
        polygon.insert(polygon.end(), rim[k].rbegin(), rim[k].rend());
        section.polygons.push_back(std::move(polygon));
        append(whole_rim, rim[k]);
    }
    std::ranges::reverse(whole_rim);
    section.rims = {bore.bore, whole_rim};
    return section;
}

}  // namespace

body_mesh inner_rotor_mesh(const design_params& design, double chord_error) {
    flat_section section;
    const std::uint32_t axis = section.add({});
    const exact_contour contour = inner_rotor_lines(design, chord_error);
    const std::size_t lobes = static_cast<std::size_t>(design.numlobes) - 1;
    const std::size_t per_lobe = contour.size() / lobes;
    index_list rim;
    for (const exact_piece& piece : contour) {
        append(rim, section.add(piece, chord_error));
    }
    for (std::size_t k = 0; k < lobes; ++k) {
        index_list polygon = {axis};
        for (std::size_t i = 0; i <= per_lobe; ++i) {
            polygon.push_back(rim[(k * per_lobe + i) % rim.size()]);
        }
        section.polygons.push_back(std::move(polygon));
    }
    section.rims = {rim};
    return between_planes(section, 0.0, design.thick);
}

body_mesh outer_rotor_mesh(const design_params& design, double chord_error) {
    return between_planes(outer_rotor_section(design, chord_error), 0.0, design.thick);
}

body_mesh section_mesh(const pump_body& body, double chord_error) {
    flat_section section;
    index_list rim;
    for (const exact_piece& piece : body.outline) {
        append(rim, section.add(piece, chord_error));
    }
    section.rims = {rim};
    section.polygons = {rim};
    return between_planes(section, body.bottom, body.top);
}

}  // namespace kvt
