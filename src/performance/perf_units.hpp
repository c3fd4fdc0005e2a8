// The unit factors of the performance model. Several are rounded; each is part of every result and
// is kept. Source: docs/formulas/flow.md, "Units".
#pragma once

#include "core/length_unit.hpp"

namespace kvt {

/// Pascals of one atmosphere, and also of one bar: the model makes no difference between them.
inline constexpr double BAR_PA = 101300.0;
/// Psi in one bar.
inline constexpr double PSI_PER_BAR = 14.5;
/// Millimetres and inches of mercury in one atmosphere.
inline constexpr double MMHG_PER_ATMOSPHERE = 760.0;
inline constexpr double INHG_PER_ATMOSPHERE = 29.92;
/// Cubic feet in one cubic metre, and pounds in one kilogram.
inline constexpr double CUBIC_FEET_PER_CUBIC_METRE = 35.31467;
inline constexpr double POUNDS_PER_KILOGRAM = 2.205;
/// Pascals of one GPa and of one ksi, for the bulk modulus.
inline constexpr double GPA_PA = 1000000000.0;
inline constexpr double KSI_PA = 6894750.0;
/// Megapascals of one GPa and of one ksi, for Young's modulus.
inline constexpr double GPA_MPA = 1000.0;
inline constexpr double KSI_MPA = 6.8947;
/// Litres a minute in one m3/s, and US gallons in one litre.
inline constexpr double LITRES_MINUTE_PER_M3S = 60000.0;
inline constexpr double US_GALLONS_PER_LITRE = 0.26417;
/// Watts of one kW and of one horsepower.
inline constexpr double WATTS_PER_KILOWATT = 1000.0;
inline constexpr double WATTS_PER_HORSEPOWER = 746.0;
/// Psi in one MPa, and in one ksi; KSI_MPA is the factor of the entries.
inline constexpr double PSI_PER_MPA = 145.04;
inline constexpr double PSI_PER_KSI = 1000.0;
/// Foot-pounds in one N m.
inline constexpr double FOOT_POUNDS_PER_NM = 0.7376;
/// Millimetres in one metre and in one foot.
inline constexpr double MM_PER_METRE = 1000.0;
inline constexpr double MM_PER_FOOT = 304.8;
/// Litres a degree in one m3 a step of the ripple model, 0.1 degree.
inline constexpr double LITRES_DEGREE_PER_M3_STEP = 10000.0;
/// So many pounds are so many newtons of side load.
inline constexpr double SIDE_LOAD_POUNDS = 2.2;
inline constexpr double SIDE_LOAD_NEWTONS = 9.81;

/// What the entries of a unit system are worth in the units of the model.
struct entry_factors {
    double volume;              ///< of the density's unit, in one cubic metre
    double mass;                ///< of the density's unit, in one kilogram
    double mercury;             ///< of the vapour pressure's unit, in one atmosphere
    double bulk_modulus_pa;     ///< pascals in one unit of the bulk modulus
    double youngs_modulus_mpa;  ///< megapascals in one unit of Young's modulus
    double pressure;            ///< units of the pressure range in one bar
};

inline constexpr entry_factors METRIC_FACTORS = {1.0,    1.0,     MMHG_PER_ATMOSPHERE,
                                                 GPA_PA, GPA_MPA, 1.0};
inline constexpr entry_factors IMPERIAL_FACTORS = {CUBIC_FEET_PER_CUBIC_METRE,
                                                   POUNDS_PER_KILOGRAM,
                                                   INHG_PER_ATMOSPHERE,
                                                   KSI_PA,
                                                   KSI_MPA,
                                                   PSI_PER_BAR};

constexpr const entry_factors& factors_of(unit_system system) {
    return system == unit_system::imperial ? IMPERIAL_FACTORS : METRIC_FACTORS;
}

/// rpm times cm3 a revolution, divided by this, is m3/s.
inline constexpr double CC_RPM_PER_M3S = 60000000.0;
/// cm3 a revolution times Pa, divided by this, is the theoretical torque in N m: TWO_PI_P in
/// millionths.
inline constexpr double CC_PA_PER_NM = 6283185.4;
/// mm2, divided by this, is the square of the radius in m of a round pipe of that area: PI_D in
/// millionths.
inline constexpr double PIPE_MM2_PER_M2 = 3141592.6999999997;

}  // namespace kvt
