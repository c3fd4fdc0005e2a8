// A STEP body of constant section between two planes: the inner rotor and the ports.
// Source: docs/file-formats.md, "STEP files (`.stp`)".
#pragma once

#include "base/text_file.hpp"
#include "geometry/point2.hpp"

#include <string>
#include <vector>

namespace kvt {

struct step_prism {
    std::string solid;    ///< name of the MANIFOLD_SOLID_BREP
    std::string product;  ///< name of the product
    std::vector<point2>
        contour;  ///< its distinct points, counter-clockwise seen from above, mm; at least 6
    double bottom = 0.0;  ///< z of the lower plane, mm
    double depth = 0.0;   ///< z of the upper plane less that of the lower, mm, above 0
};

/// Appends the body: a shell of two spline side faces and two planes. Every entity number is raised
/// by `offset`.
void write_step_prism(text_lines& out, const step_prism& prism, int offset);

}  // namespace kvt
