// The entries of Perffrm: commas, the order of the validation, the conversions of both unit
// systems.
#include "performance/perf_entries.hpp"

#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "performance/perf_units.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using box = std::string entries::*;

entries sound_entries() {
    entries boxes;
    boxes.fluid_density = "860";
    boxes.kin_visc = "12.5";
    boxes.vap_press = "0.5";
    boxes.bulk_mod_text = "1.4";
    boxes.speed_lo = "600";
    boxes.speed_hi = "6000";
    boxes.pressure_lo = "1";
    boxes.pressure_hi = "6";
    boxes.young_inner = "140";
    boxes.young_outer = "150";
    boxes.poissons_inner = "0.28";
    boxes.poissons_outer = "0.29";
    boxes.friction = "0.08";
    boxes.thick = "10";
    return boxes;
}

constexpr box IN_ORDER[] = {
    &entries::fluid_density, &entries::kin_visc,       &entries::vap_press,
    &entries::bulk_mod_text, &entries::speed_lo,       &entries::speed_hi,
    &entries::pressure_lo,   &entries::pressure_hi,    &entries::young_inner,
    &entries::young_outer,   &entries::poissons_inner, &entries::poissons_outer,
    &entries::friction};

TEST(perf_entries, take_a_comma_for_a_point) {
    entries boxes = sound_entries();
    for (const box entry : IN_ORDER) {
        boxes.*entry = "1,5,2";
    }
    boxes.Face_area_value = boxes.OD_area_value = boxes.UTS_value = "99,5";
    clean_up_perf_entries(boxes);
    for (const box entry : IN_ORDER) {
        EXPECT_EQ(boxes.*entry, "1.5.2");
    }
    EXPECT_EQ(boxes.Face_area_value + boxes.OD_area_value + boxes.UTS_value, "99,599,599,5")
        << "not of the thirteen";
}

TEST(perf_entries, pass_when_sound) {
    EXPECT_FALSE(first_refused_perf_entry(sound_entries()));
}

TEST(perf_entries, are_refused_in_the_fixed_order) {
    constexpr message TEXTS[] = {message::input_density,         message::input_viscosity,
                                 message::input_vapour_pressure, message::input_bulk_modulus,
                                 message::input_speed_range,     message::speed_range_order,
                                 message::input_pressure_range,  message::pressure_range_order,
                                 message::input_youngs_inner,    message::input_youngs_outer,
                                 message::input_poissons_inner,  message::input_poissons_outer,
                                 message::input_friction};
    const entries sound = sound_entries();
    entries boxes;
    for (std::size_t n = 0; n < std::size(IN_ORDER); ++n) {
        const auto refused = first_refused_perf_entry(boxes);
        ASSERT_TRUE(refused) << n;
        EXPECT_EQ(refused->text, TEXTS[n]) << n;
        EXPECT_EQ(refused->emptied, IN_ORDER[n]) << n;
        boxes.*IN_ORDER[n] = sound.*IN_ORDER[n];
    }
    EXPECT_FALSE(first_refused_perf_entry(boxes));
}

TEST(perf_entries, must_be_above_zero) {
    for (const box entry : IN_ORDER) {
        for (const char* text : {"", "0", "-1", "abc", "0.0"}) {
            entries boxes = sound_entries();
            boxes.*entry = text;
            const auto refused = first_refused_perf_entry(boxes);
            ASSERT_TRUE(refused) << text;
            EXPECT_EQ(refused->emptied, entry) << text;
        }
    }
}

TEST(perf_entries, must_span_a_range) {
    for (const auto& [low, high, text] :
         {std::tuple{&entries::speed_lo, &entries::speed_hi, message::speed_range_order},
          {&entries::pressure_lo, &entries::pressure_hi, message::pressure_range_order}}) {
        entries boxes = sound_entries();
        boxes.*high = boxes.*low;
        const auto refused = first_refused_perf_entry(boxes);
        ASSERT_TRUE(refused);
        EXPECT_EQ(refused->text, text);
        EXPECT_EQ(refused->emptied, high) << "the lower one stays";
    }
}

TEST(perf_entries, are_read_in_metric_units) {
    const perf_inputs inputs = read_perf_inputs(sound_entries(), unit_system::metric);
    EXPECT_EQ(inputs.density_kgm3, 860.0);
    EXPECT_EQ(inputs.kin_visc_cst, 12.5);
    EXPECT_EQ(inputs.pv, 0.5 * 101300.0 / 760.0);
    EXPECT_EQ(inputs.bulk_mod_pa, 1.4e9);
    EXPECT_EQ(inputs.young_inner_mpa, 140000.0);
    EXPECT_EQ(inputs.young_outer_mpa, 150000.0);
    EXPECT_EQ(inputs.poisson_inner, 0.28);
    EXPECT_EQ(inputs.poisson_outer, 0.29);
    EXPECT_EQ(inputs.friction, 0.08);
    EXPECT_EQ(inputs.Face_area_value, 100.0);
    EXPECT_EQ(inputs.OD_area_value, 100.0);
    EXPECT_EQ(inputs.speed_lo, 600.0);
    EXPECT_EQ(inputs.pressure_hi, 6.0);
    EXPECT_EQ(inputs.system, unit_system::metric);
}

TEST(perf_entries, are_read_in_imperial_units) {
    const perf_inputs inputs = read_perf_inputs(sound_entries(), unit_system::imperial);
    EXPECT_EQ(inputs.density_kgm3, 860.0 * 35.31467 / 2.205);
    EXPECT_EQ(inputs.kin_visc_cst, 12.5);
    EXPECT_EQ(inputs.pv, 0.5 * 101300.0 / 29.92);
    EXPECT_EQ(inputs.bulk_mod_pa, 1.4 * 6894750.0);
    EXPECT_EQ(inputs.young_inner_mpa, 140.0 * 6.8947);
    EXPECT_EQ(inputs.pressure_lo, 1.0) << "the grid converts the range";
    EXPECT_EQ(inputs.system, unit_system::imperial);
}

TEST(perf_entries, read_an_area_with_a_comma_up_to_the_comma) {
    entries boxes = sound_entries();
    boxes.Face_area_value = "99,5";
    EXPECT_EQ(read_perf_inputs(boxes, unit_system::metric).Face_area_value, 99.0);
}

TEST(perf_entries, read_the_porting_type_and_the_outlet_angles_of_the_texts) {
    entries boxes = sound_entries();
    boxes.outlet_start_inner = "14.5";
    boxes.outlet_end_inner = "148 deg";
    EXPECT_EQ(read_perf_inputs(boxes, unit_system::metric).outlet_start_inner, 14.5);
    EXPECT_EQ(read_perf_inputs(boxes, unit_system::metric).outlet_end_inner, 148.0);
    EXPECT_FALSE(is_balanced(read_perf_inputs(boxes, unit_system::metric)));
    boxes.inlet_double_sided = boxes.metering_groove = "1";
    EXPECT_TRUE(read_perf_inputs(boxes, unit_system::metric).inlet_double_sided);
    EXPECT_TRUE(read_perf_inputs(boxes, unit_system::metric).metering_groove);
    EXPECT_FALSE(is_balanced(read_perf_inputs(boxes, unit_system::metric)));
    boxes.outlet_double_sided = "1";
    EXPECT_TRUE(is_balanced(read_perf_inputs(boxes, unit_system::metric)));
    boxes.outlet_double_sided = "0";
    boxes.shadow_ports = "1";
    EXPECT_TRUE(is_balanced(read_perf_inputs(boxes, unit_system::metric)));
}

TEST(perf_entries, give_the_thickness_in_millimetres) {
    entries boxes;
    boxes.thick = "0.5";
    EXPECT_EQ(thickness_entry_mm(boxes, length_unit_of(MILLIMETRES)), 0.5);
    EXPECT_EQ(thickness_entry_mm(boxes, length_unit_of(INCHES)), 12.7);
}

TEST(perf_entries, fail_beyond_a_double) {
    entries boxes = sound_entries();
    boxes.bulk_mod_text = "1e305";
    EXPECT_FAILURE(read_perf_inputs(boxes, unit_system::metric), failure::overflow);
}

}  // namespace
}  // namespace kvt
