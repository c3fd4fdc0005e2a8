// port_timing: when the chambers open to the ports, how much of them, and how fast the oil goes
// through. Places are angles of the inner rotor since the least volume of a chamber, radians.
// Source: docs/formulas/exact_timing.md.
#pragma once

#include "core/design_params.hpp"
#include "ports/port_params.hpp"

#include <cstddef>
#include <vector>

namespace kvt {

/// Which outlines were finished, and which ports stand on both sides of the rotors. A shadow port
/// is blind: it takes no oil and does not count.
struct timed_ports {
    bool has_inlet = true, has_outlet = true, has_groove = false;
    bool inlet_double_sided = false, outlet_double_sided = false;
};

/// One chamber at a place of its life.
struct chamber_opening {
    double place = 0.0;
    double volume = 0.0;  ///< mm3
    double rate = 0.0;    ///< mm3 a radian of the inner rotor; positive while it grows
    /// Common to chamber and port, mm2, both sides together; the groove on its own, without what
    /// lies in the outlet.
    double inlet = 0.0, outlet = 0.0, groove = 0.0;

    bool is_open_to_inlet() const { return inlet > 0.0; }
    bool is_open_to_outlet() const { return outlet + groove > 0.0; }
};

/// A part of a chamber's life; `to` may lie beyond the end of the life, where the next begins.
struct life_span {
    double from = 0.0, to = 0.0;
    double volume_change = 0.0;  ///< from its beginning to its end, mm3
};

/// The largest speed of the oil in a port for one radian a second of the inner rotor, mm/s, and the
/// place of the chamber, or the angle of the inner rotor, where it is reached.
struct port_speed {
    double speed = 0.0, at = 0.0;
};

/// The speeds of the oil in a port for one radian a second of the inner rotor, mm/s, one a step of
/// the life; 0 where there is none.
struct port_speeds {
    std::vector<double> of_port;     ///< of all chambers; repeats every pitch
    std::vector<double> of_chamber;  ///< of the one whose life it is
};

struct port_timing {
    std::vector<chamber_opening> life;  ///< in equal steps over one life, its end not included
    std::size_t steps_a_pitch = 0;      ///< so many later stands the next chamber
    std::vector<life_span> inlet_open, outlet_open;  ///< outlet with its groove
    std::vector<life_span> both_open;                ///< a short cut from port to port
    std::vector<life_span> trapped;                  ///< open to none
    double trapped_change = 0.0;  ///< of all chambers in a revolution while trapped, mm3, with sign
    /// All chambers that are open to one port alone: the sum of their rates over that of their
    /// opened areas.
    port_speed inlet_speed, outlet_speed;
    /// Of one chamber, where at least a tenth of its largest opened area is open.
    port_speed inlet_chamber_speed, outlet_chamber_speed;
    port_speeds inlet_speeds, outlet_speeds;
};

/// In steps of about `step_deg` degrees of the inner rotor; openings and closings are found between
/// them to a thousandth of a degree. Throws run_time_error for an outer rotor whose lobes do not
/// reach the root.
port_timing time_ports(const design_params& design, const port_params& ports,
                       const timed_ports& which, double step_deg = 1.0);

/// One chamber at one place.
chamber_opening opening_at(const design_params& design, const port_params& ports,
                           const timed_ports& which, double place);

}  // namespace kvt
