#include "cad/autocad_outer_rotor.hpp"

#include "base/constants.hpp"
#include "geometry/outer_flank.hpp"
#include "support/sample_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// The root left between two lobes, mm.
double root_between_lobes(const design_params& design) {
    const double alpha = fillet_angle(design, design.radinnroot + design.ecc + design.radouter);
    return design.outer_root * (PI_L / design.numlobes - alpha);
}

/// A design whose fillets leave about this much of the root.
design_params design_with_root(double root_mm) {
    design_params design = sample_design();
    double small = design.fillet, large = design.fillet;
    while (design.fillet = large, root_between_lobes(design) > root_mm) {
        large += 0.5;
    }
    for (int halving = 0; halving < 60; ++halving) {
        design.fillet = (small + large) / 2.0;
        (root_between_lobes(design) > root_mm ? small : large) = design.fillet;
    }
    return design;
}

}  // namespace

TEST(model_fillet, is_the_entry_while_enough_root_is_left) {
    EXPECT_EQ(autocad::model_fillet(sample_design()), 1.5);
    const design_params design = design_with_root(2e-4);
    ASSERT_NEAR(root_between_lobes(design), 2e-4, 1e-6);
    EXPECT_EQ(autocad::model_fillet(design), design.fillet);
}

TEST(model_fillet, is_a_thousandth_smaller_where_almost_no_root_is_left) {
    for (const double root : {9e-5, 1e-5, 0.0}) {
        const design_params design = design_with_root(root);
        ASSERT_NEAR(root_between_lobes(design), root, 1e-7);
        EXPECT_EQ(autocad::model_fillet(design), design.fillet - 0.001);
    }
}

TEST(model_fillet, stays_where_it_cannot_get_smaller) {
    design_params design = sample_design();
    design.fillet = 0.0;
    design.outer_root = 5.0;  // no lobe reaches it, but without fillets that is of no concern
    EXPECT_EQ(autocad::model_fillet(design), 0.0);
    design.fillet = 0.001;
    EXPECT_EQ(autocad::model_fillet(design), 0.001);
}

}  // namespace kvt
