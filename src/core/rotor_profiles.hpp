// rotor_profiles: everything that Calculate Profiles computes. Lengths mm; angles in arrays
// radians.
#pragma once

#include "base/fixed4.hpp"
#include "base/zeroed_array.hpp"

#include <cstdint>

namespace kvt {

/// Last index of the fixed arrays.
inline constexpr int FIXED_ARRAY_LAST = 36000;

/// troch_*, inner_* and outer_* are about the inner rotor axis, with the outer rotor centre at x =
/// -ecc; fillet_* is about the outer centre. The fixed arrays hold the elements 0 .. 36000 and are
/// never cleared between runs; the growable ones are new and zeroed in every run. None of them
/// takes memory before its first element is set.
struct rotor_profiles {
    double profile_points = 0.0;  ///< number of trochoid points P, 3600.0 once a run has started
    double base_radius = 0.0;     ///< a = (radouter + radinnroot + ecc) / (1/(N-1) + 1), mm
    double roll_radius = 0.0;     ///< b = a/(N-1), mm
    double trochoid_r = 0.0;      ///< radouter + radinnroot + ecc - clearn_half, mm
    double trochoid_ratio = 0.0;  ///< trochoid_r / (N ecc)
    double lobe_centre_offset =
        0.0;  ///< radinnroot + ecc; lobe centres lie at radouter + this from the outer centre
    double inner_plot_len = 0.0;  ///< 2P/coarseness + 1, the last index of inner_plot_xy
    std::int32_t outer_xy_size =
        0;  ///< upper bound of outer_xy: 2N*596 + 1, or 2N*304 + 1 without fillets
    std::int16_t outer_xy_last = 0;  ///< last used index of outer_xy
    std::int16_t outer_last = 0;     ///< last used index of outer_x and outer_y
    fixed4 capacity;                 ///< capacity in the unit of capacity_unit
    double capacity_cc = 0.0;       ///< capacity in cm3 per revolution after rounding to 4 decimals
    double inner_area = 0.0;        ///< polar area of the inner profile about the inner axis, mm2
    double outer_area = 0.0;        ///< the same of the outer profile, mm2
    double area_ratio = 0.0;        ///< (outer_area - inner_area) / outer_area, percent
    double max_chamber_area = 0.0;  ///< mm2; the label max_chamb_vol chooses its decimals by it
    double max_chamber_volume = 0.0;  ///< max_chamber_area * thick, mm3
    double min_chamber_area = 0.0;    ///< mm2; likewise of the label min_chamb_vol
    double min_chamber_volume = 0.0;  ///< min_chamber_area * thick, mm3
    double max_chamber_inner_angle =
        0.0;  ///< half-angle of the chamber window at maximum chamber, degrees
    double max_chamber_outer_angle = 0.0;  ///< the same seen from the outer centre
    double min_chamber_inner_angle = 0.0;  ///< half-angle at minimum chamber, degrees
    double min_chamber_outer_angle = 0.0;  ///< the same seen from the outer centre

    static zeroed_array fixed_array() { return zeroed_array(FIXED_ARRAY_LAST + 1); }

    zeroed_array troch_x = fixed_array();  ///< trochoid points 0 .. P; element P repeats element 0
    zeroed_array troch_y = fixed_array();
    zeroed_array troch_angle =
        fixed_array();  ///< generating angle, then the uniform index angle i PI_D/(P/2)
    zeroed_array troch_slope = fixed_array();  ///< dy/dx, central difference, 0 where dx is 0
    zeroed_array troch_xy;                     ///< flat x0, y0, x1, y1 ..., 0 .. 7201
    zeroed_array inner_x = fixed_array();      ///< inner rotor profile, 0 .. P-1
    zeroed_array inner_y = fixed_array();
    zeroed_array inner_plot_xy;  ///< flat x, y of every coarseness-th inner point, closed
    zeroed_array outer_xy;       ///< flat x, y of the outer rotor profile
    zeroed_array outer_x;        ///< the same points as two lists
    zeroed_array outer_y;
    zeroed_array fillet_x;  ///< first fillet only, 0 .. 100, about the outer centre
    zeroed_array fillet_y;
    zeroed_array fillet_r;  ///< its distance from the outer centre
};

}  // namespace kvt
