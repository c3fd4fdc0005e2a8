// design_params: the design inputs as Calculate Profiles read them, millimetres whatever the form
// shows.
#pragma once

#include <cstdint>

namespace kvt {

struct design_params {
    std::int32_t numlobes = 0;  ///< number of lobes N of the outer rotor; the inner rotor has N - 1
    double ecc = 0.0;           ///< distance between the rotor axes, mm
    double radouter = 0.0;      ///< radius of the circular lobes of the outer rotor, mm
    double radinnroot = 0.0;    ///< radius from the inner rotor axis to its root, mm
    double clearn_half = 0.0;   ///< half of the rotor tip clearance, mm
    double thick = 0.0;         ///< rotor thickness, mm; 1 gives values per unit thickness
    double shaftdiameter = 0.0;  ///< drive shaft diameter, mm
    double minmaterial =
        0.0;  ///< minimum material between shaft and root, and outside the outer root, mm
    double maxdiameter =
        0.0;  ///< largest allowed outer rotor diameter, mm; also scales the drawing
    double axial_clear = 0.0;   ///< axial clearance of the rotor set, mm
    double radial_clear = 0.0;  ///< radial clearance of the rotor set, mm
    double fillet = 0.0;  ///< radius of the fillets between outer lobes and root, mm; 0 means none
    double outer_root = 0.0;      ///< root radius of the outer rotor, mm; checked and written back
    std::int16_t coarseness = 0;  ///< every n-th point goes to the plotted inner rotor
};

}  // namespace kvt
