// Tests of the port timing: areas stay within chamber and port, what opens where, trapped oil, oil
// speeds.
#include "exact/port_timing.hpp"

#include "app/program.hpp"
#include "exact/chamber.hpp"
#include "exact/polygon_overlap.hpp"
#include "geometry/contour_crossing.hpp"
#include "support/cnc_design.hpp"
#include "support/random_design.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

timed_ports single_sided(const program& kavetta) {
    return {true, true, kavetta.port_params.has_groove, false, false};
}

std::vector<point2> points_of(const zeroed_array& x, const zeroed_array& y, std::int16_t count) {
    std::vector<point2> points;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        points.push_back({x[i], y[i]});
    }
    return points;
}
indexed_polygon polygon_of(const port_record& port) {
    return indexed_polygon(points_of(port.x, port.y, port.last));
}
/// What of the groove is timed.
std::vector<point2> points_of_groove(const port_params& ports) {
    return points_of(ports.groove_x, ports.groove_y,
                     ports.has_groove ? ports.groove_main_last : std::int16_t{0});
}

port_timing timing_of(const program& kavetta, const timed_ports& which, double step_deg = 2.0) {
    return time_ports(kavetta.design_params, kavetta.port_params, which, step_deg);
}

/// Whether a place lies in one of the spans, the next life included.
bool is_in(const std::vector<life_span>& spans, double place, double life) {
    return std::ranges::any_of(spans, [&](const life_span& span) {
        return (place > span.from && place < span.to) ||
               (place + life > span.from && place + life < span.to);
    });
}

class port_timing_of_sample : public testing::Test {
  protected:
    program kavetta = design_with_ports("n07_engine_oil_groove");
    const double life = chamber_life(nominal_pair(kavetta.design_params));
};

TEST_F(port_timing_of_sample, a_growing_chamber_takes_oil_and_a_shrinking_one_gives_it) {
    const port_timing timing = timing_of(kavetta, single_sided(kavetta));
    ASSERT_EQ(timing.inlet_open.size(), 1U);
    ASSERT_EQ(timing.outlet_open.size(), 1U);
    const double inlet = (timing.inlet_open[0].from + timing.inlet_open[0].to) / 2.0;
    const double outlet = (timing.outlet_open[0].from + timing.outlet_open[0].to) / 2.0;
    EXPECT_LT(inlet, life / 2.0) << "while it grows";
    EXPECT_GT(outlet, life / 2.0);
    EXPECT_LT(outlet, life);
}

TEST_F(port_timing_of_sample, opens_and_closes_between_open_and_shut) {
    const timed_ports which = single_sided(kavetta);
    const port_timing timing = timing_of(kavetta, which);
    const auto inlet_at = [&](double place) {
        return opening_at(kavetta.design_params, kavetta.port_params, which, place).inlet;
    };
    const double near = 0.002 * 3.14159265 / 180.0;
    const life_span& open = timing.inlet_open[0];
    EXPECT_EQ(inlet_at(open.from - near), 0.0);
    EXPECT_GT(inlet_at(open.from + near), 0.0);
    EXPECT_GT(inlet_at(open.to - near), 0.0);
    EXPECT_EQ(inlet_at(open.to + near), 0.0);
}

TEST_F(port_timing_of_sample, every_place_is_open_to_one_both_or_none) {
    const port_timing timing = timing_of(kavetta, single_sided(kavetta));
    for (const chamber_opening& opening : timing.life) {
        const bool both = opening.is_open_to_inlet() && opening.is_open_to_outlet();
        const bool none = !opening.is_open_to_inlet() && !opening.is_open_to_outlet();
        EXPECT_EQ(is_in(timing.both_open, opening.place, life), both) << opening.place;
        EXPECT_EQ(is_in(timing.trapped, opening.place, life), none) << opening.place;
    }
}

TEST_F(port_timing_of_sample, trapped_oil_changes_by_the_volume_of_the_chamber) {
    const port_timing timing = timing_of(kavetta, single_sided(kavetta));
    const exact_pair pair = nominal_pair(kavetta.design_params);
    const lobe_outline outline = outline_of_lobe(kavetta.design_params);
    double sum = 0.0;
    for (const life_span& span : timing.trapped) {
        EXPECT_NEAR(
            span.volume_change,
            chamber_volume(pair, outline, span.to) - chamber_volume(pair, outline, span.from),
            1e-9);
        sum += span.volume_change;
    }
    EXPECT_NEAR(timing.trapped_change, 6.0 * sum, 1e-9) << "six chambers a revolution";
}

TEST_F(port_timing_of_sample, a_port_on_both_sides_opens_twice_as_far) {
    timed_ports both = single_sided(kavetta);
    both.inlet_double_sided = both.outlet_double_sided = true;
    const port_timing one = timing_of(kavetta, single_sided(kavetta));
    const port_timing two = timing_of(kavetta, both);
    for (std::size_t i = 0; i < one.life.size(); i += 5) {
        EXPECT_NEAR(two.life[i].inlet, 2.0 * one.life[i].inlet, 1e-3);
        EXPECT_NEAR(two.life[i].outlet, 2.0 * one.life[i].outlet, 1e-3);
        EXPECT_EQ(two.life[i].groove, one.life[i].groove) << "the groove stays on one side";
    }
    EXPECT_NEAR(two.inlet_speed.speed, one.inlet_speed.speed / 2.0, 1e-3 * one.inlet_speed.speed);
}

TEST_F(port_timing_of_sample, the_groove_opens_the_outlet_earlier) {
    timed_ports without = single_sided(kavetta);
    without.has_groove = false;
    const port_timing grooved = timing_of(kavetta, single_sided(kavetta));
    const port_timing plain = timing_of(kavetta, without);
    EXPECT_LT(grooved.outlet_open[0].from, plain.outlet_open[0].from);
    EXPECT_NEAR(grooved.outlet_open[0].to, plain.outlet_open[0].to, 0.01);
    const auto groove = std::ranges::max_element(grooved.life, {}, &chamber_opening::groove);
    EXPECT_GT(groove->groove, 0.0);
}

TEST_F(port_timing_of_sample, without_ports_the_whole_life_is_trapped) {
    const port_timing timing = timing_of(kavetta, {false, false, false, false, false}, 5.0);
    EXPECT_TRUE(timing.inlet_open.empty());
    EXPECT_TRUE(timing.outlet_open.empty());
    ASSERT_EQ(timing.trapped.size(), 1U);
    EXPECT_DOUBLE_EQ(timing.trapped[0].to, life);
    EXPECT_EQ(timing.trapped_change, 0.0);
    EXPECT_EQ(timing.inlet_speed.speed, 0.0);
}

TEST_F(port_timing_of_sample, oil_speed_is_rates_over_areas) {
    const port_timing timing = timing_of(kavetta, single_sided(kavetta));
    double fastest = 0.0;
    for (std::size_t i = 0; i < timing.steps_a_pitch; ++i) {
        double rates = 0.0;
        double areas = 0.0;
        for (std::size_t k = i; k < timing.life.size(); k += timing.steps_a_pitch) {
            const chamber_opening& opening = timing.life[k];
            if (opening.is_open_to_inlet() && !opening.is_open_to_outlet()) {
                rates += opening.rate;
                areas += opening.inlet;
            }
        }
        fastest = std::max(fastest, std::abs(rates) / areas);
    }
    EXPECT_NEAR(timing.inlet_speed.speed, fastest, 1e-9);
    EXPECT_GT(timing.inlet_chamber_speed.speed, 0.0);
}

TEST_F(port_timing_of_sample, the_speeds_of_every_step_have_the_largest_among_them) {
    const port_timing timing = timing_of(kavetta, single_sided(kavetta));
    ASSERT_EQ(timing.inlet_speeds.of_port.size(), timing.life.size());
    EXPECT_EQ(std::ranges::max(timing.inlet_speeds.of_port), timing.inlet_speed.speed);
    EXPECT_EQ(std::ranges::max(timing.outlet_speeds.of_chamber), timing.outlet_chamber_speed.speed);
    for (std::size_t i = timing.steps_a_pitch; i < timing.life.size(); ++i) {
        EXPECT_EQ(timing.outlet_speeds.of_port[i],
                  timing.outlet_speeds.of_port[i - timing.steps_a_pitch]);
        EXPECT_TRUE(timing.life[i].is_open_to_outlet() ||
                    timing.outlet_speeds.of_chamber[i] == 0.0);
    }
}

TEST(port_timing, an_outlet_that_ends_at_180_degrees_is_open_as_it_is_drawn) {
    program kavetta = opened_design("n07_engine_oil_groove");
    kavetta.entries.outlet_end_inner = kavetta.entries.outlet_end_outer = "180";
    scripted_user person;
    calculate_profiles(kavetta, person);
    design_ports(kavetta, person);
    const port_timing timing = timing_of(kavetta, {true, true, false, false, false});
    ASSERT_EQ(timing.outlet_open.size(), 1U);
    EXPECT_GT(timing.outlet_open[0].to - timing.outlet_open[0].from, 3.0) << "about half a life";
    EXPECT_GT(timing.outlet_speed.speed, 0.0);
}

TEST(port_timing, areas_never_exceed_the_chamber_or_the_port) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const program kavetta = random_design(random);
        const exact_pair pair = nominal_pair(kavetta.design_params);
        const lobe_outline outline = outline_of_lobe(kavetta.design_params);
        const double inlet = polygon_of(kavetta.port_params.inlet).area();
        const double outlet = polygon_of(kavetta.port_params.outlet).area();
        const double groove = indexed_polygon(points_of_groove(kavetta.port_params)).area();
        const bool has_sound_groove = !any_cross({points_of_groove(kavetta.port_params)});
        for (const chamber_opening& opening :
             timing_of(kavetta, single_sided(kavetta), 30.0).life) {
            // The polygon's chords lie within 0.04 mm2, or 3e-4, of the chamber.
            const double chamber = chamber_area(pair, outline, opening.place);
            const double most = chamber + std::max(0.04, 3e-4 * chamber);
            EXPECT_LE(opening.inlet, std::min(most, inlet + 1e-3));
            EXPECT_LE(opening.outlet, std::min(most, outlet + 1e-3));
            // A groove that crosses itself has parts that lie in it twice, and count so.
            if (has_sound_groove) {
                EXPECT_LE(opening.groove, std::min(most, groove + 1e-3));
                EXPECT_LE(opening.outlet + opening.groove, most);
            }
            EXPECT_GE(opening.inlet, 0.0);
        }
    }
}

}  // namespace
}  // namespace kvt
