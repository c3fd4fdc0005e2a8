// housing_solid: the pump body of a plan as a solid.
// Source: docs/formulas/solid_models.md, "Housing".
#pragma once

#include "cad/builtin/solid_modeller.hpp"
#include "cad/housing.hpp"

namespace kvt::builtin {

/// A cylinder from bottom to top, less the bore from 0 to top and the pockets under it. Throws
/// automation_error when the kernel can't build it.
body housing_solid(const housing_plan& plan);

}  // namespace kvt::builtin
