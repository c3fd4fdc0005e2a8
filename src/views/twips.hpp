// Coordinates of the Design view's elements are single-precision numbers of twips.
#pragma once

namespace kvt {

/// The nearest single-precision number. Throws overflow for what such a number can't hold, and for
/// no number.
float single(double twips);

}  // namespace kvt
