// point2: a point or a difference of points in the plane of the rotors, mm.
#pragma once

namespace kvt {

struct point2 {
    double x = 0.0, y = 0.0;

    friend bool operator==(const point2&, const point2&) = default;
};

}  // namespace kvt
