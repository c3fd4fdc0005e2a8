#include "exact/pump_bodies.hpp"

namespace kvt {

namespace {

/// Those that solid models have, too.
constexpr colour_shares INNER = {0.784, 0.635, 0.29}, OUTER = {0.435, 0.576, 0.659},
                        INLET = {0.227, 0.435, 0.847}, OUTLET = {0.816, 0.251, 0.22},
                        GROOVE = {0.878, 0.541, 0.157};

/// A port that was finished, on both sides of the rotors.
class port_bodies_of {
  public:
    port_bodies_of(const design_params& design, const port_params& ports, const entries& boxes,
                   port_side side)
        : thick_(design.thick),
          above_(design.thick + design.axial_clear),
          is_inlet_(side == port_side::inlet),
          is_there_(ports.of(side).last > 0),
          is_double_(is_ticked(is_inlet_ ? boxes.inlet_double_sided : boxes.outlet_double_sided)),
          is_shadow_(is_ticked(boxes.shadow_ports)) {
        if (is_there_) {
            outline_ = port_arcs(ports.of(side).built, is_inlet_);
        }
    }

    void add_lower(std::vector<pump_body>& bodies) const {
        if (is_there_) {
            const double depth = is_double_ ? 0.5 * thick_ : thick_;
            add(bodies, is_inlet_ ? "Inlet Port Lower" : "Outlet Port Lower", -depth, 0.0);
        }
    }

    void add_upper(std::vector<pump_body>& bodies) const {
        if (is_there_ && (is_double_ || is_shadow_)) {
            const double height = is_double_ ? 0.5 * thick_ : 0.2 * thick_;
            add(bodies, is_inlet_ ? "Inlet Port Upper" : "Outlet Port Upper", above_,
                above_ + height);
        }
    }

  private:
    void add(std::vector<pump_body>& bodies, std::string_view name, double bottom,
             double top) const {
        bodies.push_back({name, is_inlet_ ? INLET : OUTLET, outline_, {}, bottom, top});
    }

    double thick_, above_;
    bool is_inlet_, is_there_, is_double_, is_shadow_;
    exact_contour outline_;
};

}  // namespace

pump_body inner_rotor_body(const design_params& design) {
    return {"Inner Rotor", INNER, inner_rotor_arcs(design), {}, 0.0, design.thick};
}

pump_body outer_rotor_body(const design_params& design) {
    return {"Outer Rotor",
            OUTER,
            rim_of_outer_rotor(design),
            reversed_contour(outer_rotor_arcs(design)),
            0.0,
            design.thick};
}

std::vector<pump_body> porting_bodies(const design_params& design, const port_params& ports,
                                      const entries& boxes) {
    const port_bodies_of inlet(design, ports, boxes, port_side::inlet);
    const port_bodies_of outlet(design, ports, boxes, port_side::outlet);
    std::vector<pump_body> bodies;
    inlet.add_lower(bodies);
    outlet.add_lower(bodies);
    outlet.add_upper(bodies);
    inlet.add_upper(bodies);
    if (is_ticked(boxes.metering_groove) && ports.groove_last > 0) {
        bodies.push_back({"Metering Groove",
                          OUTLET,
                          groove_arcs(ports.groove_built),
                          {},
                          -ports.groove_depth_mm,
                          0.0});
    }
    return bodies;
}

}  // namespace kvt
