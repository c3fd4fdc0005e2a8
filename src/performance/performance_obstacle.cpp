#include "performance/performance_obstacle.hpp"

#include "base/run_time_error.hpp"
#include "performance/delivered_flow.hpp"
#include "performance/drive_power.hpp"
#include "performance/hertz_contact.hpp"
#include "performance/lobe_load_share.hpp"
#include "performance/maximum_speed.hpp"
#include "performance/perf_grid.hpp"
#include "performance/perf_results.hpp"
#include "performance/perf_units.hpp"
#include "performance/pressure_ripple.hpp"
#include "performance/sliding_velocity.hpp"

#include <algorithm>

namespace kvt {

namespace {

/// Both end angles of the outlet were entered as 180.
bool outlet_ends_on_the_axis(const port_params& ports) {
    return ports.outlet.corners[END_INNER].angle_deg == 0.0 &&
           ports.outlet.corners[END_OUTER].angle_deg == 0.0;
}

bool outlet_ends_before_it_begins(const port_params& ports) {
    return ports.outlet.corners[END_OUTER].angle_deg <= ports.outlet.corners[START_OUTER].angle_deg;
}

bool outlet_misses_the_chambers(const design_params& design, const port_params& ports) {
    return std::min(ports.outlet.outer_r, design.outer_root) <=
           std::max(ports.outlet.inner_r, design.radinnroot);
}

/// What both materials give way by, the reciprocal of combined_modulus; 0 or less above a Poisson's
/// ratio of 1.
double compliance(const perf_inputs& inputs) {
    const auto of = [](double poisson, double young_mpa) {
        return (1.0 - poisson * poisson) / young_mpa;
    };
    return of(inputs.poisson_inner, inputs.young_inner_mpa) +
           of(inputs.poisson_outer, inputs.young_outer_mpa);
}

/// A run of the formulas on results of its own.
class trial {
  public:
    trial(const design_params& design, const rotor_profiles& rotors, const port_params& ports,
          const perf_inputs& inputs)
        : design_(design), rotors_(rotors), ports_(ports), inputs_(inputs) {}

    std::optional<message> obstacle() {
        try {
            return power_obstacle();
        } catch (const run_time_error&) {
            return message::hint_performance_out_of_range;
        }
    }

  private:
    std::optional<message> power_obstacle() {
        set_shared_values(design_, rotors_, inputs_, results_);
        calc_maximum_speed(rotors_, ports_, inputs_, results_);
        set_grid(inputs_, results_);
        calc_sliding_velocity(design_, rotors_, results_);
        calc_drive_power(design_, rotors_, ports_, inputs_, results_);
        if (results_.power_min <= 0.0) {
            return message::hint_no_drive_power;
        }
        calc_lobe_load_share(design_, rotors_, results_);
        calc_hertz_and_side_load(design_, inputs_, results_);
        return flow_obstacle();
    }

    std::optional<message> flow_obstacle() {
        calc_flow(design_, rotors_, ports_, inputs_, results_);
        if (results_.flow_max == 0.0) {
            return message::hint_leaks_take_the_flow;
        }
        if (fills(inputs_)) {
            return std::nullopt;
        }
        perf_inputs without_groove = inputs_;
        without_groove.metering_groove = false;
        return inputs_.metering_groove && fills(without_groove) ? message::hint_groove_never_fills
                                                                : message::hint_chamber_never_fills;
    }

    /// The chamber of the ripple reaches the pressure of the outlet.
    bool fills(const perf_inputs& inputs) {
        try {
            calc_pressure_ripple(design_, rotors_, ports_, inputs, results_);
            return true;
        } catch (const run_time_error&) {
            return false;
        }
    }

    const design_params& design_;
    const rotor_profiles& rotors_;
    const port_params& ports_;
    const perf_inputs& inputs_;
    perf_results results_;
};

}  // namespace

std::optional<message> port_obstacle(const design_params& design, const port_params& ports) {
    if (ports.outlet.outer_r == 0.0) {
        return message::no_ports_yet;
    }
    if (ports.outlet.inner_r <= design.shaftdiameter / 2.0) {
        return message::hint_outlet_within_shaft;
    }
    if (outlet_misses_the_chambers(design, ports)) {
        return message::hint_outlet_misses_chambers;
    }
    if (outlet_ends_on_the_axis(ports)) {
        return message::hint_outlet_ends_at_180;
    }
    const inlet_sectors inlet = sectors_of_inlet(ports);
    if (inlet.outer_mm2 <= inlet.inner_mm2) {
        return message::hint_inlet_without_area;
    }
    if (outlet_ends_before_it_begins(ports)) {
        return message::hint_outlet_without_arc;
    }
    return std::nullopt;
}

std::optional<message> performance_obstacle(const design_params& design,
                                            const rotor_profiles& rotors, const port_params& ports,
                                            const perf_inputs& inputs) {
    if (const auto obstacle = port_obstacle(design, ports)) {
        return obstacle;
    }
    if (inputs.pv >= BAR_PA) {
        return message::hint_vapour_pressure;
    }
    if (!(compliance(inputs) > 0.0)) {
        return message::hint_poissons_ratio;
    }
    return trial(design, rotors, ports, inputs).obstacle();
}

}  // namespace kvt
