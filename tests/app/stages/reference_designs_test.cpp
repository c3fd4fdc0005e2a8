// Tests of Calculate Profiles on whole designs against independently computed values: all scalars,
// labels and entries, every 25th element of the arrays.
#include "app/stages/calculate_profiles.hpp"
#include "support/open_design.hpp"

#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <span>

namespace kvt {

namespace {

// Lengths in mm. The C library's sine and cosine may differ in the last bit between machines; the
// offset of the inner profile multiplies that by the slope of the trochoid.
constexpr double POINT_TOLERANCE = 1e-11;
constexpr double INNER_TOLERANCE = 1e-9;
constexpr double SLOPE_TOLERANCE = 1e-9;    // relative
constexpr double SCALAR_TOLERANCE = 1e-13;  // relative

class reference_design : public testing::TestWithParam<const char*> {
  protected:
    reference_design() : kavetta(opened_design(GetParam())) {
        std::ifstream(std::string(KVT_TEST_DATA) + "/reference/" + GetParam() + ".json") >>
            expected;
        end = calculate_profiles(kavetta, person);
    }

    void expect_array(const char* name, std::span<const double> actual, double tolerance,
                      bool relative = false) {
        const auto& array = expected.at("arrays").at(name);
        const std::size_t every = array.at("every");
        const std::size_t count = array.at("count");
        const std::vector<double> values = array.at("values");
        ASSERT_GE(actual.size(), count) << name;
        for (std::size_t sample = 0; sample < values.size(); ++sample) {
            const double allowed = relative ? tolerance * std::fabs(values[sample]) : tolerance;
            ASSERT_NEAR(actual[sample * every], values[sample], allowed)
                << name << " " << sample * every;
        }
        if (count > 0) {
            const double last = array.at("last");
            EXPECT_NEAR(actual[count - 1], last, relative ? tolerance * std::fabs(last) : tolerance)
                << name;
        }
    }

    void expect_scalar(const char* record, const char* name, double actual) {
        const double value = expected.at(record).at(name);
        EXPECT_NEAR(actual, value, SCALAR_TOLERANCE * std::fabs(value)) << name;
    }

    program kavetta;
    scripted_user person;
    nlohmann::json expected;
    run_end end = run_end::error;
};

}  // namespace

TEST_P(reference_design, ends_without_a_message) {
    EXPECT_EQ(end, run_end::ok);
    EXPECT_TRUE(person.messages.empty());
}

TEST_P(reference_design, has_the_design_as_it_was_read) {
    const design_params& design = kavetta.design_params;
    expect_scalar("design_params", "numlobes", design.numlobes);
    expect_scalar("design_params", "ecc", design.ecc);
    expect_scalar("design_params", "radouter", design.radouter);
    expect_scalar("design_params", "radinnroot", design.radinnroot);
    expect_scalar("design_params", "clearn_half", design.clearn_half);
    expect_scalar("design_params", "thick", design.thick);
    expect_scalar("design_params", "shaftdiameter", design.shaftdiameter);
    expect_scalar("design_params", "minmaterial", design.minmaterial);
    expect_scalar("design_params", "maxdiameter", design.maxdiameter);
    expect_scalar("design_params", "axial_clear", design.axial_clear);
    expect_scalar("design_params", "radial_clear", design.radial_clear);
    expect_scalar("design_params", "fillet", design.fillet);
    expect_scalar("design_params", "outer_root", design.outer_root);
    expect_scalar("design_params", "coarseness", design.coarseness);
}

TEST_P(reference_design, has_the_scalars) {
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    expect_scalar("rotor_profiles", "profile_points", rotors.profile_points);
    expect_scalar("rotor_profiles", "base_radius", rotors.base_radius);
    expect_scalar("rotor_profiles", "roll_radius", rotors.roll_radius);
    expect_scalar("rotor_profiles", "trochoid_r", rotors.trochoid_r);
    expect_scalar("rotor_profiles", "trochoid_ratio", rotors.trochoid_ratio);
    expect_scalar("rotor_profiles", "lobe_centre_offset", rotors.lobe_centre_offset);
    expect_scalar("rotor_profiles", "inner_plot_len", rotors.inner_plot_len);
    expect_scalar("rotor_profiles", "outer_xy_size", rotors.outer_xy_size);
    expect_scalar("rotor_profiles", "outer_xy_last", rotors.outer_xy_last);
    expect_scalar("rotor_profiles", "outer_last", rotors.outer_last);
    expect_scalar("rotor_profiles", "capacity_cc", rotors.capacity_cc);
    expect_scalar("rotor_profiles", "max_chamber_inner_angle", rotors.max_chamber_inner_angle);
    expect_scalar("rotor_profiles", "max_chamber_outer_angle", rotors.max_chamber_outer_angle);
    expect_scalar("rotor_profiles", "min_chamber_inner_angle", rotors.min_chamber_inner_angle);
    expect_scalar("rotor_profiles", "min_chamber_outer_angle", rotors.min_chamber_outer_angle);
    EXPECT_EQ(rotors.capacity.text(),
              expected.at("rotor_profiles").at("capacity").get<std::string>());
}

TEST_P(reference_design, has_the_profiles) {
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    expect_array("troch_x", rotors.troch_x, POINT_TOLERANCE);
    expect_array("troch_y", rotors.troch_y, POINT_TOLERANCE);
    expect_array("troch_slope", rotors.troch_slope, SLOPE_TOLERANCE, true);
    expect_array("inner_x", rotors.inner_x, INNER_TOLERANCE);
    expect_array("inner_y", rotors.inner_y, INNER_TOLERANCE);
    expect_array("inner_plot_xy", rotors.inner_plot_xy, INNER_TOLERANCE);
    expect_array("outer_x", rotors.outer_x, POINT_TOLERANCE);
    expect_array("outer_y", rotors.outer_y, POINT_TOLERANCE);
    expect_array("fillet_x", rotors.fillet_x, POINT_TOLERANCE);
    expect_array("fillet_y", rotors.fillet_y, POINT_TOLERANCE);
    expect_array("fillet_r", rotors.fillet_r, POINT_TOLERANCE);
}

TEST_P(reference_design, shows_the_labels) {
    for (const auto& [name, text] : expected.at("labels").items()) {
        const label_field* field = find_named(label_fields(), name);
        ASSERT_NE(field, nullptr) << name;
        EXPECT_EQ(kavetta.labels.*field->member, text.get<std::string>()) << name;
    }
}

TEST_P(reference_design, has_the_entries_written_back) {
    for (const auto& [name, text] : expected.at("entries").items()) {
        EXPECT_EQ(kavetta.entries.*find_entry(name)->member, text.get<std::string>()) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(designs, reference_design,
                         testing::Values("n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                         "n07_inch_hydraulic", "n09_crank_oil"),
                         [](const auto& tested) { return std::string(tested.param); });

}  // namespace kvt
