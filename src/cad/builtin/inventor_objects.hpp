// inventor_objects: what takes the place of Inventor for our own routine: the members that it
// calls, over solids of the built-in modeller. Centimetres; each run has a part of its own.
#pragma once

#include "automation/value.hpp"
#include "cad/builtin/drawn_document.hpp"

namespace kvt::builtin {

/// The application object.
automation::object_ref inventor_application(const desk_ref& desk);

}  // namespace kvt::builtin
