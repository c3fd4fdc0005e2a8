// design_view: what the Design view shows, as retained data in twips; a widget only paints it.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "views/view_state.hpp"

#include <array>
#include <cstdint>
#include <vector>

namespace kvt {

/// A straight element, twips, origin in the upper left corner of the picture, y down.
struct drawn_line {
    float x1 = 0.0F, y1 = 0.0F, x2 = 0.0F, y2 = 0.0F;

    friend bool operator==(const drawn_line&, const drawn_line&) = default;
};

/// A circle arc drawn counter-clockwise (as seen on the screen) from start_angle to end_angle,
/// radians 0 .. 2 pi, measured from the positive x axis with y up. Centre and radius in twips, y
/// down.
struct drawn_arc {
    double x = 0.0, y = 0.0, radius = 0.0, start_angle = 0.0, end_angle = 0.0;

    friend bool operator==(const drawn_arc&, const drawn_arc&) = default;
};

/// An array of line elements. Element 0 always exists; clear() unloads the others and hides element
/// 0.
struct line_array {
    std::vector<drawn_line> elements = std::vector<drawn_line>(1);
    bool element0_visible = false;

    void clear();
    /// Gives an element its coordinates and shows it; loads it when index equals the element count.
    void set(std::size_t index, const drawn_line& line);
};

/// The circle of the outer rotor's outside diameter, Shape1.
struct drawn_circle {
    double x = 0.0, y = 0.0, diameter = 0.0;
    bool visible = false;
};

/// The rubber band, Line3: the lines 0 to 3 run along the top, the left, the right and the bottom
/// of a band that is drawn down to the right.
struct rubber_band {
    std::array<drawn_line, 4> lines;
    bool visible = false;
};

struct drawn_point {
    float x = 0.0F, y = 0.0F;

    friend bool operator==(const drawn_point&, const drawn_point&) = default;
};

/// A chamber between the rotors, filled, and where it ends; empty without one.
struct filled_chamber {
    std::vector<drawn_point> outline, contacts;
};

/// The members are named as the controls of viewwinfrm and stand in their stacking order, lowest
/// first.
struct design_view {
    filled_chamber chamber;           ///< below everything else
    std::vector<drawn_arc> Picture1;  ///< outer rotor, drawing width 2
    line_array metering_groove_extraline, anglelineout, angleline, metering_groove_portline;
    line_array outlet_portline, inlet_portline;
    rubber_band Line3;    ///< dotted, drawing width 1
    line_array Line1;     ///< inner rotor
    drawn_circle Shape1;  ///< outside diameter
};

/// Clears the rotors: Line1, Shape1, the arcs of Picture1 and the chamber.
void clear_rotors(design_view& view);

/// Clears everything, ports and groove included.
void clear_all(design_view& view);

/// What the outside diameter takes of the side of the picture.
inline constexpr double WHOLE_VIEW_SHARE = 0.95;

/// The scale of a new drawing: view_scale = view_size * 0.95 / maxdiameter, twips per mm; view_ecc
/// = ecc * view_scale. The drawing is one for view_size.
void set_plot_scale(const design_params& design, view_state& state);

/// The direction of a difference (dx, dy) for a drawn arc, radians: arctan(dy/dx), plus PI_L if dx
/// < 0 (with dy above or below 0), plus TWO_PI_L if dx > 0 and dy < 0. Throws division_by_zero when
/// dx is 0.
double drawing_angle(double dx, double dy);

/// The first drawing of the inner rotor by Calculate Profiles, about the view's centre view_size/2:
///     x = view_scale * x + view_size/2 + view_ecc + clearn_half * view_scale      y = view_scale *
///     y + view_size/2
/// One element a pair of neighbouring points of inner_plot_xy, a last one closing to the first
/// point; shows Shape1 with diameter view_scale * maxdiameter. Throws overflow for coordinates
/// beyond single precision, subscript_out_of_range when the plot list is too short.
void draw_inner_rotor(const design_params& design, const rotor_profiles& rotors,
                      const view_state& state, design_view& view);

/// Where the outer rotor stands in the picture: its centre in twips, y down, and the angle in
/// radians, y up, that is added to those of its lobes.
struct outer_rotor_place {
    double x = 0.0, y = 0.0, start_angle = 0.0;
};

/// The first drawing of the outer rotor by Calculate Profiles: fillet, lobe and root arcs about the
/// view's centre. y is flipped, unlike in the inner rotor's lines. Without fillets there are no
/// fillet arcs. The end angles are those of drawing_angle from each arc's centre. Arcs drawn before
/// a failure stay. Throws run_time_error for an angle whose x difference is 0.
void draw_outer_rotor(const design_params& design, const rotor_profiles& rotors,
                      const view_state& state, design_view& view);

/// The arcs of the outer rotor again, at a place, with the scale view_scale: in the order and by
/// the rules of the first drawing, but computed from the design alone (lobe centres at radouter +
/// radinnroot + ecc). Picture1 is not cleared. Throws run_time_error as the first drawing does.
void redraw_outer_rotor(const design_params& design, const outer_rotor_place& place,
                        const view_state& state, design_view& view);

}  // namespace kvt
