// json_values: the values of a result section as JSON.
#pragma once

#include "app/results/named_values.hpp"
#include "kvt/json_fields.hpp"

namespace kvt {

/// The values under their names; tables as arrays of arrays, [speed][pressure]. The brief form
/// leaves out what is for the full one only.
json json_of_values(const named_values& values, bool full);

}  // namespace kvt
