#include "cad/autocad_outer_rotor.hpp"

#include "automation/object.hpp"
#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/outer_flank.hpp"

#include <algorithm>
#include <cmath>

namespace kvt::autocad {

using automation::object_of;
using automation::object_ref;

namespace {

constexpr double SMALLEST_ROOT_MM = 1e-4;
constexpr double FILLET_CUT_MM = 0.001;
/// How far the wedge reaches beyond what it cuts.
constexpr double WEDGE_OVERRUN = 1.5;
/// How far the bore stays inside the lobes' tips: a bore that touches them fails.
constexpr double BORE_SHARE = 0.5;

constexpr const char* SELECTION_NAME = "KVT";
constexpr std::int32_t SELECT_ALL = 5;  // AcSelect: acSelectionSetAll

double lobe_centre_radius(const design_params& design) {
    return design.radinnroot + design.ecc + design.radouter;
}

/// Half of the angle of a lobe's sector.
double half_pitch(const design_params& design) {
    return checked_divide(PI_L, design.numlobes);
}

/// A selection set of the drawing that is gone with its object.
class selection_set {
  public:
    explicit selection_set(const object_ref& document) {
        const object_ref sets = object_of(document, "SelectionSets");
        ignore_failure([&sets] { object_of(sets, "Item", {SELECTION_NAME})->run("Delete"); });
        set_ = object_of(sets, "Add", {SELECTION_NAME});
    }
    ~selection_set() {
        ignore_failure([this] { set_->run("Delete"); });
    }
    selection_set(const selection_set&) = delete;
    selection_set& operator=(const selection_set&) = delete;

    void select_all() { set_->run("Select", {SELECT_ALL}); }

  private:
    object_ref set_;
};

/// Draws the tool of one lobe and cuts with it. Plane points are about the outer rotor centre.
/// Every tool is twice as high as the disc, so that no faces lie in each other.
class outer_rotor_builder {
  public:
    outer_rotor_builder(const drawing& in, const design_params& design)
        : in_(in),
          design_(design),
          fillet_(model_fillet(design)),
          C_(lobe_centre_radius(design)),
          middle_(design.thick / 2.0),
          tool_height_(2.0 * design.thick) {}

    void draw() {
        const object_ref lobe = tool_cylinder({C_, 0.0}, design_.radouter);
        if (fillet_ != 0.0) {
            lobe->run("Boolean", {UNION, fillet_wedge()});
        }
        const object_ref tool = root_left_by(lobe);
        trim_to_sector(tool);
        const std::vector<object_ref> copies =
            in_.polar_copies(tool, design_.numlobes, place({}, 0.0));
        selection_set selected(in_.document());
        selected.select_all();
        const object_ref disc = disc_with_bore();
        subtract(disc, tool);
        for (const object_ref& copy : copies) {
            subtract(disc, copy);
        }
    }

  private:
    static void subtract(const object_ref& solid, const object_ref& tool) {
        solid->run("Boolean", {SUBTRACTION, tool});
    }
    point2 shifted(point2 point) const { return {point.x - design_.ecc, point.y}; }
    point3 place(point2 point, double z) const {
        const point2 in_drawing = shifted(point);
        return {in_drawing.x, in_drawing.y, z};
    }
    object_ref tool_cylinder(point2 centre, double radius) const {
        return in_.cylinder(place(centre, middle_), radius, tool_height_);
    }

    /// What the fillets leave between lobe and root: the wedge that reaches from the lobe's centre
    /// over both fillet centres out of the disc, less the two fillets.
    object_ref fillet_wedge() const {
        const double Rc = design_.outer_root - fillet_;
        const double alpha = alpha_of_fillet();
        const point2 F = polar_point(Rc, alpha);
        const object_ref wedge = in_.extruded(wedge_outline(F, alpha), tool_height_);
        in_.move(wedge, middle_ - design_.thick);
        const object_ref upper = tool_cylinder(F, fillet_);
        const object_ref lower = tool_cylinder({F.x, -F.y}, fillet_);
        subtract(wedge, upper);
        subtract(wedge, lower);
        return wedge;
    }
    double alpha_of_fillet() const {
        design_params rounded = design_;
        rounded.fillet = fillet_;
        return fillet_angle(rounded, C_);
    }
    std::vector<point2> wedge_outline(point2 F, double alpha) const {
        const double g =
            checked_divide(WEDGE_OVERRUN * std::max(design_.outer_root, C_), std::cos(alpha)) + F.x;
        const point2 far = polar_point(g, alpha);
        return {shifted({C_, 0.0}), shifted(F), shifted(far), shifted({far.x, -far.y}),
                shifted({F.x, -F.y})};
    }

    /// The disc of the root circle without the lobe.
    object_ref root_left_by(const object_ref& lobe) const {
        object_ref tool = tool_cylinder({}, design_.outer_root);
        subtract(tool, lobe);
        return tool;
    }
    /// Leaves the sector of lobe 0, half a pitch to both sides of the x axis.
    void trim_to_sector(const object_ref& tool) const {
        const point2 edge = polar_point(1.0, half_pitch(design_));
        const point3 centre = place({}, 0.0), above = place({}, 1.0);
        in_.slice(tool, centre, place(edge, 0.0), above);
        in_.slice(tool, centre, above, place({edge.x, -edge.y}, 0.0));
    }
    object_ref disc_with_bore() const {
        object_ref disc =
            in_.cylinder(place({}, middle_), design_.maxdiameter / 2.0, design_.thick);
        subtract(disc, tool_cylinder({}, BORE_SHARE * (C_ - design_.radouter)));
        return disc;
    }

    const drawing& in_;
    const design_params& design_;
    double fillet_;
    double C_;            ///< radius of the lobe centres
    double middle_;       ///< mid-height of the disc
    double tool_height_;  ///< as much below the disc as above
};

}  // namespace

double model_fillet(const design_params& design) {
    if (design.fillet <= FILLET_CUT_MM) {
        return design.fillet;
    }
    const double alpha = fillet_angle(design, lobe_centre_radius(design));
    const double root = design.outer_root * (half_pitch(design) - alpha);
    return root < SMALLEST_ROOT_MM ? design.fillet - FILLET_CUT_MM : design.fillet;
}

void draw_outer_rotor(const drawing& in, const design_params& design) {
    outer_rotor_builder(in, design).draw();
}

}  // namespace kvt::autocad
