#include "app/gt/gt_model.hpp"

#include "app/stages/performance_fixture.hpp"
#include "support/expect_failure.hpp"

namespace kvt {
namespace {

namespace fs = std::filesystem;

fs::path gt_sample(const char* name) {
    return fs::path(KVT_TEST_DATA) / "gtsuite" / name;
}

class gt_model_test : public performance_test {
  protected:
    gt_model_test() {
        prepare("n04_fuel");
        calculate_performance(kavetta, person);
        inputs.fluid = "oil_A";
        inputs.profile = gt_sample("sample_chambers.txt");
    }
    model_inputs inputs;
};

TEST_F(gt_model_test, has_the_values_of_the_records_and_of_the_profile) {
    const pump_values pump = model_values(kavetta, inputs);
    EXPECT_EQ(pump.thick, kavetta.design_params.thick);
    EXPECT_EQ(pump.speed_rpm, kavetta.perf_results.speed_rpm);
    EXPECT_EQ(pump.biggest_chamber_mm3, 2154.25);
    EXPECT_EQ(pump.smallest_chamber_mm3, 288.125);
    EXPECT_EQ(pump.fluid, "oil_A");
    EXPECT_EQ(pump.bearing_length, kavetta.design_params.shaftdiameter);
}

TEST_F(gt_model_test, takes_the_bearing_that_is_given) {
    inputs.bearing_length_mm = 21.5;
    inputs.bearing_clearance_um = 33.0;
    EXPECT_EQ(model_values(kavetta, inputs).bearing_length, 21.5);
    EXPECT_EQ(model_values(kavetta, inputs).bearing_clearance_um, 33.0);
}

TEST_F(gt_model_test, is_the_same_pass_by_pass_on_the_file_and_at_once) {
    const pump_values pump = model_values(kavetta, inputs);
    fs::copy_file(gt_sample("sample_KVT_GT_conv.gtm"), folder / "model.gtm");
    const auto on_file = change_model_file(folder / "model.gtm", folder / "scratch", pump);
    const auto at_once =
        write_changed_model(gt_sample("sample_KVT_GT_conv.gtm"), folder / "other.gtm", pump);
    EXPECT_EQ(read_file(folder / "model.gtm"), read_file(folder / "other.gtm"));
    EXPECT_FALSE(fs::exists(folder / "scratch"));
    ASSERT_EQ(on_file.size(), 14U);
    for (std::size_t i = 0; i < on_file.size(); ++i) {
        EXPECT_EQ(on_file[i].lines, at_once[i].lines) << i;
    }
}

TEST_F(gt_model_test, that_fails_writes_nothing) {
    const pump_values pump = model_values(kavetta, inputs);
    EXPECT_FAILURE(write_changed_model(inputs.profile, folder / "other.gtm", pump),
                   failure::input_past_end);
    EXPECT_FALSE(fs::exists(folder / "other.gtm"));
    inputs.profile = folder / "none.txt";
    EXPECT_FAILURE(model_values(kavetta, inputs), failure::file_not_found);
}

}  // namespace
}  // namespace kvt
