// The march of one chamber into the outlet.
#include "performance/outlet_opening.hpp"

#include "performance/chamber_rate.hpp"
#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace kvt {
namespace {

void prepare_march(performance_case& sample) {
    sample.prepare();
    set_chamber_rate(sample.design_params, sample.rotor_profiles, sample.perf_results);
    set_outlet_edge(sample.design_params, sample.port_params, sample.perf_inputs,
                    sample.perf_results);
}

double march(performance_case& sample) {
    return march_into_outlet(sample.design_params, sample.rotor_profiles, sample.port_params,
                             sample.perf_inputs, sample.perf_results);
}

/// The march as its formulas stand, every chamber volume summed anew.
struct plain_march {
    explicit plain_march(const performance_case& from) : sample(from), r(from.perf_results) {}

    double opening(int s, bool& closed) const {
        const double n = sample.design_params.numlobes;
        const double alpha = (s / 10.0 + 180.0 / (n - 1.0)) * 3.1415927 / 180.0;
        const double edge = r.port_edge_r / 1000.0;
        double h = edge * std::sin(alpha - r.port_edge_angle);
        closed = h < 0.0;
        if (sample.perf_inputs.metering_groove) {
            closed = alpha - r.nose_angle <= 0.0;
            h = edge * std::sin(alpha - r.nose_angle);
            if (alpha - r.port_edge_angle > 0.0) {
                h = edge * std::sin(alpha - r.port_edge_angle);
            }
        }
        return h;
    }

    double chamber_volume(double index) const {
        double volume = trapped;
        for (int t = 1400; t <= index; ++t) {
            const double rate = r.chamber_rate[static_cast<std::size_t>(t)];
            if (rate > 0.0) {
                volume = volume - rate;
            }
        }
        return volume;
    }

    void run() {
        const double n = sample.design_params.numlobes;
        const double thick = sample.design_params.thick;
        const double e = sample.perf_inputs.bulk_mod_pa;
        trapped = sample.rotor_profiles.capacity_cc / ((n - 1.0) * 1000000.0);
        p_out = r.press_pa[0];
        for (int s = 1400; !(p_ch >= p_out && !rows.empty()); ++s) {
            bool closed = false;
            const double h = opening(s, closed);
            if (closed) {
                continue;
            }
            const double area = h * std::sqrt(h * h / 3.0);
            const double depth =
                sample.perf_inputs.metering_groove ? sample.port_params.groove_depth_mm : thick;
            const double volume = (depth / 1000.0) * area;
            const double pipe_r = std::sqrt(std::abs(volume) / (thick * 3.1415927 / 1000.0));
            const double q = (3.1415927 / 8.0) * (std::pow(pipe_r, 4.0) / r.dyn_visc) *
                             ((p_out - p_ch) / (thick / 1000.0));
            const double step = q * (1.0 / (r.speed_rpm[0] * 3600.0 / 60.0));
            p_ch = p_ch + e * step / trapped;
            double w = r.port_volume;
            double d = 0.0;
            for (int k = 1; k <= n - 2.0; ++k) {
                const double index = s + (k / (n - 1.0)) * 3600.0;
                if (index - 1800.0 / (n - 1.0) <
                    3600.0 - sample.port_params.outlet.corners[START_INNER].angle_deg * 10.0) {
                    w = w + chamber_volume(index);
                    d = d + r.chamber_rate[static_cast<std::size_t>(std::nearbyint(index))];
                }
            }
            p_out = p_out - e * step / ((w + trapped) - d);
            rows.push_back(p_out);
            trapped = trapped - r.chamber_rate[static_cast<std::size_t>(s)];
        }
    }

    const performance_case& sample;
    const perf_results& r;
    double trapped = 0.0, p_out = 0.0, p_ch = 0.0;
    std::vector<double> rows;
};

class outlet_opening_test : public testing::TestWithParam<const char*> {
  protected:
    outlet_opening_test() { prepare_march(sample); }
    performance_case sample = load_performance_case(GetParam());
};

TEST_P(outlet_opening_test, gives_the_same_digits_as_the_plain_formulas) {
    for (const bool groove : {false, true}) {
        sample.perf_inputs.metering_groove = groove && sample.port_params.groove_depth_mm > 0.0;
        prepare_march(sample);
        plain_march plain(sample);
        plain.run();
        ASSERT_GT(plain.rows.size(), 3U);
        EXPECT_EQ(march(sample), plain.p_out);
        EXPECT_EQ(sample.perf_results.trapped_volume, plain.trapped);
        for (std::size_t row = 0; row < plain.rows.size(); ++row) {
            ASSERT_EQ(sample.perf_results.ripple_sector[row], plain.rows[row]) << row;
        }
    }
}

TEST_P(outlet_opening_test, lets_the_outlet_pressure_fall_until_the_chamber_has_it) {
    const double end = march(sample);
    EXPECT_LT(end, sample.perf_results.press_pa[0]);
    for (std::size_t row = 1; sample.perf_results.ripple_sector[row] > 0.0; ++row) {
        EXPECT_LE(sample.perf_results.ripple_sector[row],
                  sample.perf_results.ripple_sector[row - 1])
            << row;
    }
}

INSTANTIATE_TEST_SUITE_P(samples, outlet_opening_test, testing::ValuesIn(SAMPLES),
                         [](const auto& name) { return std::string(name.param); });

/// N = 8: the other chambers stand at real steps.
TEST(outlet_opening, rounds_real_steps_only_as_indexes) {
    performance_case sample = load_performance_case("n07_engine_oil_groove");
    sample.design_params.numlobes = 8;
    prepare_march(sample);
    plain_march plain(sample);
    plain.run();
    EXPECT_EQ(march(sample), plain.p_out);
}

TEST(outlet_opening, has_the_depth_of_the_groove_through_the_whole_march) {
    performance_case sample = load_performance_case("n07_engine_oil_groove");
    prepare_march(sample);
    march(sample);
    const perf_array with_depth = sample.perf_results.ripple_sector;
    sample.port_params.groove_depth_mm = sample.design_params.thick;
    prepare_march(sample);
    march(sample);
    EXPECT_LT(sample.perf_results.ripple_sector[2], with_depth[2]);
    sample.port_params.groove_depth_mm = 0.0;
    prepare_march(sample);
    // No depth, no flow, also behind the port's edge.
    EXPECT_FAILURE(march(sample), failure::subscript_out_of_range);
}

TEST(outlet_opening, ends_at_the_bound_of_the_rows_when_the_chamber_never_fills) {
    performance_case sample = load_performance_case("n04_fuel");
    sample.perf_inputs.kin_visc_cst = 1e12;
    prepare_march(sample);
    EXPECT_FAILURE(march(sample), failure::subscript_out_of_range);
}

TEST(outlet_opening, ends_at_the_bound_of_the_steps_when_the_chamber_never_opens) {
    performance_case sample = load_performance_case("n07_engine_oil_groove");
    prepare_march(sample);
    sample.perf_results.nose_angle = 1000.0;  // radians: beyond all 72000 steps
    EXPECT_FAILURE(march(sample), failure::subscript_out_of_range);
}

TEST(outlet_opening, starts_at_step_1400) {
    performance_case sample = load_performance_case("n07_engine_oil_groove");
    prepare_march(sample);
    // A nose that stands before the first step: the first row comes from s = 1400.
    sample.perf_results.nose_angle = 0.0;
    plain_march plain(sample);
    bool closed = true;
    plain.opening(1400, closed);
    EXPECT_FALSE(closed);
    plain.run();
    opening_march one_step(sample.design_params, sample.rotor_profiles, sample.port_params,
                           sample.perf_inputs, sample.perf_results);
    EXPECT_FALSE(one_step.is_filled());
    one_step.step();
    EXPECT_EQ(sample.perf_results.ripple_sector[0], plain.rows[0]);
    EXPECT_EQ(one_step.outlet_pressure(), plain.rows[0]);
}

}  // namespace
}  // namespace kvt
