// exact_pair: the rotor pair as geometry has it, without any list of points. The axis of the inner
// rotor is the origin, that of the outer rotor (-ecc, 0); the rotors touch along normals through
// the pitch point ((N - 1) ecc, 0). The pump turns clockwise: chambers grow below the line of
// centres and shrink above it. Angles are radians. Source: docs/formulas/exact_volume.md, "Pair".
#pragma once

#include "core/design_params.hpp"
#include "exact/plane.hpp"
#include "geometry/point2.hpp"

namespace kvt {

struct exact_pair {
    int lobes = 0;               ///< N of the outer rotor
    double ecc = 0.0;            ///< distance of the axes, mm
    double lobe_distance = 0.0;  ///< R, of the lobe centres from the outer axis, mm
    double lobe_radius = 0.0;    ///< r, mm
    double thick = 0.0;          ///< b, mm

    double pitch() const;  ///< angle between neighbouring lobes
    double inner_turn()
        const {  ///< of the inner rotor for one radian of the outer one, N / (N - 1)
        return static_cast<double>(lobes) / (lobes - 1.0);
    }
    point2 pitch_point() const { return {(lobes - 1.0) * ecc, 0.0}; }
};

/// Of the entries, without clearance: R = radouter + radinnroot + ecc, r = radouter.
exact_pair nominal_pair(const design_params& design);
/// The pair whose lobes would generate the inner rotor with its clearance: r is larger by half of
/// the tip clearance.
exact_pair pair_of_inner_rotor(const design_params& design);

/// The lobe that stands at an angle about the outer axis.
point2 lobe_centre(const exact_pair& pair, double angle);

/// Where that lobe touches the inner rotor: K = C + r n, n from the lobe centre C to the pitch
/// point.
struct lobe_contact {
    point2 place;
    point2 normal;  ///< n, of length 1
};
lobe_contact contact_of_lobe(const exact_pair& pair, double angle);

/// g = b / 2 ((N - 1) / N |K - outer axis|^2 - |K|^2), mm3 a radian of the inner rotor: what the
/// contact of a lobe sweeps.
double sweep_of_lobe(const exact_pair& pair, double angle);

/// Curvature of the inner rotor's flank where it touches a lobe, 1/mm, positive where it is convex:
/// that of the path of the lobe centre, k, moved by the lobe radius: k / (1 - k r).
double flank_curvature(const exact_pair& pair, double angle);
/// 1 / r + the flank's, 1/mm: of the line contact of lobe and flank.
double contact_curvature(const exact_pair& pair, double angle);

/// (x dy - y dx) / d angle of the inner rotor's profile at its contact, in the frame of the inner
/// rotor, while the outer rotor turns forward: twice the area that the ray to the contact sweeps.
double profile_sweep(const exact_pair& pair, double angle);

/// The inner rotor's profile in its own frame, by the angle of the lobe that touches it there: lobe
/// k of a pair whose outer rotor stands at psi has the angle psi + k pitch.
point2 inner_profile_point(const exact_pair& pair, double angle);

}  // namespace kvt
