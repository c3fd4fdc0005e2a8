// What the tests of the passes share: values by hand, and one pass on a few lines.
#pragma once

#include "gtsuite/model_passes.hpp"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace kvt {

/// Round numbers, so that a test can tell in which place each one went.
inline pump_values hand_made_pump() {
    pump_values pump;
    pump.numlobes = 5;
    pump.thick = 12.5;
    pump.maxdiameter = 80.0;
    pump.shaftdiameter = 16.0;
    pump.tip_clearance_um = 100.0;
    pump.axial_clearance_each_side_um = 25.0;
    pump.radial_clearance_um = 150.0;
    pump.density_kgm3 = 860.0;
    pump.kin_visc_cst = 32.0;
    pump.friction = 0.05;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        pump.speed_rpm[i] = 1000.0 + 100.0 * static_cast<double>(i);
        pump.pressure_bar[i] = 2.0 + 0.5 * static_cast<double>(i);
    }
    pump.inlet_gap_width = 9.5;
    pump.outlet_gap_width = 8.25;
    pump.velocity_factor = 0.0025;
    pump.drag = {1.5, 2.5, 3.5, 4.5};
    pump.face_area_mm2 = 4000.0;
    pump.face_radius = 30.0;
    pump.bearing_length = 16.0;
    pump.bearing_clearance_um = 17.0;
    pump.biggest_chamber_mm3 = 2154.25;
    pump.smallest_chamber_mm3 = 35.5;
    pump.fluid = "oil_A";
    return pump;
}

inline std::string gt_sample(const std::string& name) {
    std::ifstream file(std::filesystem::path(KVT_TEST_DATA) / "gtsuite" / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline model_text sample_model() {
    return read_model_text(gt_sample("sample_KVT_GT_conv.gtm"));
}

/// Lines after one pass, and what it said that it did.
struct passed {
    model_lines lines;
    pass_count count;
};

inline passed run_pass(model_pass pass, model_lines lines,
                       const pump_values& pump = hand_made_pump(), model_ids ids = {}) {
    pass_work work{pump, model_encoding::utf8, ids};
    const pass_count count = pass(lines, work);
    return {std::move(lines), count};
}

inline void expect_count(const passed& done, int objects, int lines) {
    EXPECT_EQ(done.count.objects, objects);
    EXPECT_EQ(done.count.lines, lines);
}

/// The pass finds nothing in these lines, and leaves them.
inline void expect_untouched(model_pass pass, const model_lines& lines) {
    const passed done = run_pass(pass, lines);
    EXPECT_EQ(done.lines, lines);
    expect_count(done, 0, 0);
}

}  // namespace kvt
