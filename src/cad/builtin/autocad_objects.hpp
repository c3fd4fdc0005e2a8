// autocad_objects: what takes the place of AutoCAD for our own routine: the members that it calls,
// over solids of the built-in modeller. There is one drawing, "Drawing1", and a run adds to it; its
// unit is that of the design.
#pragma once

#include "automation/value.hpp"
#include "cad/builtin/drawn_document.hpp"

namespace kvt::builtin {

/// The application object. A drawing is opened when one is asked for and none is open.
automation::object_ref autocad_application(const desk_ref& desk);

}  // namespace kvt::builtin
