// Tests of Design Ports on whole designs against independently computed values: every number, mark,
// point and line.
#include "app/files/port_report_file.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "support/open_design.hpp"

#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <utility>

namespace kvt {

namespace {

constexpr double TOLERANCE =
    1e-9;  // mm, degrees, radians: the search stops at the same step on every machine

/// Sharp corners: A and g are then equal but for their last bits, so the C library decides whether
/// a corner lies at its entered angle or a step of the search beside it.
constexpr double SHARP_TOLERANCE_DEG = 0.0021;
constexpr double SHARP_TOLERANCE =
    0.0021 * 3.15 / 180.0 * 40.0;  // mm, radii are below 40 mm; other fields likewise

class reference_ports : public testing::TestWithParam<const char*> {
  protected:
    reference_ports() : kavetta(opened_design(GetParam())) {
        std::ifstream(std::string(KVT_TEST_DATA) + "/reference/" + GetParam() + "_ports.json") >>
            expected;
        EXPECT_EQ(calculate_profiles(kavetta, person), run_end::ok);
        done = design_ports(kavetta, person);
        sharp = kavetta.port_params.port_radius == 0.0;
    }

    const nlohmann::json& field(std::string_view name) const {
        return expected.at("port_params").at(std::string(name));
    }

    program kavetta;
    scripted_user person;
    nlohmann::json expected;
    ports_designed done;
    bool sharp = false;
};

}  // namespace

TEST_P(reference_ports, finishes_all_outlines_without_a_message) {
    EXPECT_TRUE(person.messages.empty());
    EXPECT_TRUE(done.inlet);
    EXPECT_TRUE(done.outlet);
    EXPECT_EQ(done.groove, kavetta.entries.metering_groove == "1");
}

TEST_P(reference_ports, has_the_values_of_the_record) {
    for (const auto& [name, value] : port_values(std::as_const(kavetta.port_params))) {
        const bool is_angle = name.ends_with("_deg");
        const double sharp_tolerance = is_angle ? SHARP_TOLERANCE_DEG : SHARP_TOLERANCE;
        EXPECT_NEAR(*value, field(name).get<double>(), sharp ? sharp_tolerance : TOLERANCE) << name;
    }
}

TEST_P(reference_ports, has_the_marks_and_counts) {
    for (const auto& [name, index] : port_indexes(kavetta.port_params)) {
        // Two arcs, each with one point more or less.
        EXPECT_NEAR(*index, field(name).get<int>(), sharp ? 2 : 0) << name;
    }
}

TEST_P(reference_ports, has_the_outlines) {
    for (const auto& [name, values, last] : port_arrays(kavetta.port_params)) {
        if (!expected.at("port_params").contains(name)) {
            EXPECT_EQ(last, 0) << name;
            continue;
        }
        const std::vector<double> points = field(name);
        const zeroed_array& actual = *values;
        EXPECT_NEAR(actual[0], points.front(), sharp ? SHARP_TOLERANCE : TOLERANCE) << name;
        for (std::size_t i = 0; !sharp && i < points.size(); ++i) {
            ASSERT_NEAR(actual[i], points[i], TOLERANCE) << name << " " << i;
        }
        for (std::size_t i = std::size_t(last) + 1; i < actual.size(); ++i) {
            ASSERT_EQ(actual[i], 0.0) << name << " beyond its end";
        }
    }
}

TEST_P(reference_ports, has_the_entries_written_back) {
    for (const auto& [name, text] : expected.at("entries").items()) {
        EXPECT_EQ(kavetta.entries.*find_entry(name)->member, text.get<std::string>()) << name;
    }
}

TEST_P(reference_ports, has_the_lines_of_the_report) {
    kavetta.date = "3 Nov 2021";
    std::vector<std::string> lines = port_report(kavetta);
    ASSERT_EQ(lines.size(), 24U);
    EXPECT_EQ(lines[2], "3 Nov 2021");
    const std::vector<std::string> independent = expected.at("report_lines");
    for (std::size_t i = 0; i < lines.size(); ++i) {
        // The centres of sharp corners may lie a step of the search apart.
        if (i != 2 && !(sharp && lines[i].starts_with("X: "))) {
            EXPECT_EQ(lines[i], independent[i]);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(designs, reference_ports,
                         testing::Values("n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                         "n07_inch_hydraulic", "n09_crank_oil"),
                         [](const auto& tested) { return std::string(tested.param); });

}  // namespace kvt
