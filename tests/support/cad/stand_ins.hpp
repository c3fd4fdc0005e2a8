// The stand-ins of the five CAD packages. Each is at its start as the package is when it was just
// started; what a package may or may not know in its different releases can be chosen.
#pragma once

#include "support/cad/stand_in.hpp"

#include <memory>

namespace kvt {

struct autocad_release {
    bool has_open_drawing = true;
    bool turns_copies = true;  ///< of ArrayPolar; else it moves them round
    bool tells_boxes = true;
};
/// A drawing in any unit.
std::unique_ptr<cad_stand_in> autocad_stand_in(double mm_per_unit, autocad_release release = {});

struct solidworks_release {
    bool has_part_template = true;
    bool extrudes = true;
};
std::unique_ptr<cad_stand_in> solidworks_stand_in(solidworks_release release = {});

struct inventor_release {
    bool knows_distance_extent = true;
};
std::unique_ptr<cad_stand_in> inventor_stand_in(inventor_release release = {});

/// What a protrusion of Models does.
enum class new_model { added, refused, not_added, failed };
struct solidedge_release {
    bool knows_modelling_mode = true;
    bool takes_profiles = true;
    new_model first = new_model::added;
    new_model further = new_model::added;
};
std::unique_ptr<cad_stand_in> solidedge_stand_in(solidedge_release release = {});

std::unique_ptr<cad_stand_in> catia_stand_in();

}  // namespace kvt
