// The march of the ripple model: one chamber turns into the outlet, 0.1 degree a step, and fills
// from it. Source: docs/formulas/ripple.md, "March".
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"

#include <array>
#include <cstdint>

namespace kvt {

/// Step s stands for the angle s / 10 degrees; the march starts at s = 1400. Pressures Pa, volumes
/// m3.
class opening_march {
  public:
    /// Needs chamber_rate and the outlet geometry. Sets trapped_volume to capacity_cc / (N - 1),
    /// m3.
    opening_march(const design_params& design, const rotor_profiles& rotors,
                  const port_params& ports, const perf_inputs& inputs, perf_results& results);

    /// One step: when the chamber is open, oil flows in from the outlet, and a row of ripple_sector
    /// is written. Throws subscript_out_of_range behind the last step or row of the arrays.
    void step();

    /// The chamber has opened and has reached the pressure of the outlet.
    bool is_filled() const { return started_ && chamber_pressure_ >= outlet_pressure_; }
    double outlet_pressure() const { return outlet_pressure_; }

  private:
    /// Kept: the chamber volumes count from this step too, whatever the ports; outlet_opening_test
    /// holds it.
    static constexpr int FIRST_STEP = 1400;

    struct outlet_system {
        double volume;  ///< port and open chambers
        double rate;    ///< change of the open chambers in this step
    };

    /// Height of the opening, m; false when the chamber is still closed.
    bool is_open(double& height) const;
    double inflow(double height) const;
    void set_other_chambers();
    outlet_system outlet() const;
    void fill(double step_volume);

    const design_params& design_;
    const port_params& ports_;
    const perf_inputs& inputs_;
    perf_results& results_;
    double numlobes_;
    double outlet_pressure_;
    double chamber_pressure_ = 0.0;
    int s_ = FIRST_STEP;
    int row_ = 0;
    bool started_ = false;
    std::array<double, LOBE_ARRAY_LAST + 1>
        chamber_index_{};  ///< step of chamber k = 1 .. N - 2, a real number
    std::array<double, LOBE_ARRAY_LAST + 1> chamber_volume_{};  ///< its volume, m3
};

}  // namespace kvt
