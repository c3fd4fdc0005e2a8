// shown_models: what the Model View shows of the bodies that the built-in modeller holds.
#pragma once

#include "cad/model_store.hpp"
#include "views/model/model_scene.hpp"

#include <string>
#include <vector>

namespace kvt {

struct program;

/// Everything that was built and not closed; nothing before the modeller was loaded.
std::vector<model_document> built_documents(const program& kavetta);

/// Closes a document; its bodies are gone.
void close_model_document(const program& kavetta, document_number document);

struct model_look {
    bool on_dark_ground = false;
    bool turns_with_design_view = false;
    int line_width = 1;  ///< pixels
};

/// The bodies in their colours, without a section. Their surfaces are made now where they were not
/// yet, and belong to the modeller: the scene holds until a document closes.
model_scene scene_of_bodies(const program& kavetta, const std::vector<model_body>& bodies,
                            const model_look& look);

/// How a body stands when it turns with the rotors of the Design view, clockwise from above:
///     inner rotor: rotation_angle about (0, 0)
///     outer rotor: outer_rotation_angle about (-ecc, 0)
/// Every other body stands still.
part_turn turn_of(const program& kavetta, body_role role);

/// "Inner Rotor: volume 12.345 cm³, box 40.000 x 40.000 x 10.000 mm", "3 bodies: ..". The volume is
/// contour area times height, without curves; the box is in the project's unit. Empty without
/// bodies.
std::string bodies_line(const program& kavetta, const std::vector<model_body>& bodies);

/// "Distance 5.000 mm: x 3.000, y 4.000, z 0.000", in the project's unit.
std::string distance_line(const program& kavetta, const point3& from, const point3& to);

/// "12.500 mm": a length in the project's unit.
std::string model_length(const program& kavetta, double mm);

}  // namespace kvt
