#include "geometry/trochoid_spacing.hpp"

#include "base/checked_math.hpp"

namespace kvt {

namespace {

constexpr double FINE_DEGREES = 0.025;
constexpr double COARSE_DEGREES = 0.15;
constexpr double FINE_STEP = 25000.0;     // 0.025 degree in millionths
constexpr double COARSE_STEP = 150000.0;  // 0.15 degree in millionths
constexpr double MILLIONTHS = 1000000.0;
constexpr double END_SHARE = 0.2;
constexpr double MIDDLE_SHARE = 0.6;

}  // namespace

int trochoid_spacing::points_of_lobe(int lobe) const {
    const double count = n_start + n_end + n_mid + n_extra;
    return static_cast<int>(lobe < left ? count + 1.0 : count);
}

double trochoid_spacing::step(int lobe, int j) const {
    double tail_from = n_start + n_mid + n_extra + 1.0;
    if (lobe < left) {
        tail_from += 1.0;
    }
    if (j <= n_start || j >= tail_from) {
        return FINE_STEP;
    }
    if (j > n_start + n_mid) {
        return step_extra * MILLIONTHS;
    }
    return COARSE_STEP;
}

trochoid_spacing spacing_of_points(double points, double inner_lobes) {
    const double z = inner_lobes;
    const double per_lobe = floor_to_int(checked_divide(points, z));
    trochoid_spacing zones;
    zones.n_start = floor_to_int(per_lobe * END_SHARE);
    zones.n_end = floor_to_int(per_lobe * END_SHARE);
    zones.n_mid = floor_to_int(per_lobe * MIDDLE_SHARE);

    const double rest = points - (zones.n_start + zones.n_end + zones.n_mid) * z;
    const double deg_fixed =
        zones.n_start * FINE_DEGREES + zones.n_end * FINE_DEGREES + zones.n_mid * COARSE_DEGREES;
    if (rest > z) {
        zones.n_extra = floor_to_int(checked_divide(rest, z));
        zones.step_extra = checked_divide(360.0 - deg_fixed * z, rest);
        zones.left = points - (zones.n_start + zones.n_end + zones.n_mid + zones.n_extra) * z;
    }
    return zones;
}

}  // namespace kvt
