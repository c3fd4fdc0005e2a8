// numpy_values: the values of a result section as Python objects.
#pragma once

#include "app/results/named_values.hpp"

#include <pybind11/pybind11.h>

namespace kvt {

/// A dict of the values under their names: float, int, str, and arrays of float64 that can't be
/// written to. An array whose numbers lie together is a view of them, which keeps the owner alive;
/// one of several pieces is put together anew.
pybind11::dict dict_of_values(const named_values& values, const pybind11::object& owner);

/// An array of its own, which can be written to.
pybind11::object array_of(const std::vector<double>& numbers);

}  // namespace kvt
