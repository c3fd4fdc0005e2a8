// point3: a point or a difference of points in space, mm. z is the axis of the rotors, up.
#pragma once

namespace kvt {

struct point3 {
    double x = 0.0, y = 0.0, z = 0.0;

    friend bool operator==(const point3&, const point3&) = default;
};

inline point3 operator+(const point3& a, const point3& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline point3 operator-(const point3& a, const point3& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline double dot(const point3& a, const point3& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline point3 cross(const point3& a, const point3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

}  // namespace kvt
