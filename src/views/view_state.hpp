// view_state: where the Design view stands: turned, scaled and moved how far, and the corners of
// its rubber band.
#pragma once

#include <cstdint>
#include <optional>

namespace kvt {

/// A chamber of the pair at a rotation_angle: the angle of the inner rotor since its least volume,
/// radians.
struct chamber_place {
    double place = 0.0, rotation_angle = 0.0;
};

/// Lengths in twips.
struct view_state {
    double rotation_angle = 0.0;        ///< rotation of the inner rotor in the view, degrees
    double outer_rotation_angle = 0.0;  ///< rotation of the outer rotor in the view, degrees
    std::int16_t view_size = 3000;      ///< side of the square drawing area
    std::int16_t drawn_size = 0;        ///< view_size of the present drawing; 0 before the first
    double view_scale = 0.0;            ///< twips per millimetre
    double view_cx = 3000.0;            ///< position of the pump's origin in the picture
    double view_cy = 3000.0;
    double view_ecc = 0.0;   ///< ecc * view_scale
    double view_zoom = 0.0;  ///< factor of the last zoom
    std::int16_t zoom_start_x = 0, zoom_start_y = 0, zoom_end_x = 0,
                 zoom_end_y = 0;   ///< rubber band corners
    double angleline_count = 0.0;  ///< element count of angleline at the last reset
    std::optional<chamber_place> marked_chamber;
};

}  // namespace kvt
