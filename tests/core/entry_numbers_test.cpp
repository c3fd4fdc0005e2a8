// Tests of the kinds and units of the entries.
#include "core/entry_numbers.hpp"

#include <gtest/gtest.h>
#include <tuple>

namespace kvt {
namespace {

std::string unit_of(const char* entry, std::int16_t units = MILLIMETRES) {
    app_state state;
    state.drawing_units = units;
    return entry_unit(*find_entry(entry), captions(), state);
}

TEST(number_kind_of, knows_lengths_angles_and_whole_numbers) {
    EXPECT_EQ(number_kind_of("ecc"), number_kind::length);
    EXPECT_EQ(number_kind_of("Outlet_inner_radius"), number_kind::length);
    EXPECT_EQ(number_kind_of("groove_length"), number_kind::angle);
    EXPECT_EQ(number_kind_of("numlobes"), number_kind::whole);
    EXPECT_EQ(number_kind_of("speed_lo"), number_kind::plain);
}

TEST(entry_unit, is_what_the_form_shows) {
    for (const auto& [entry, unit] : {std::tuple{"ecc", "mm"},
                                      {"inlet_end_outer", "°"},
                                      {"groove_width", "mm"},
                                      {"numlobes", ""},
                                      {"fluid_density", "Kg/m^3"},
                                      {"speed_hi", "RPM"},
                                      {"pressure_lo", "bar"},
                                      {"young_outer", "GPa"},
                                      {"Face_area_value", "%"},
                                      {"friction", ""},
                                      {"poissons_inner", ""},
                                      {"volumereqd", ""}}) {
        EXPECT_EQ(unit_of(entry), unit) << entry;
    }
    EXPECT_EQ(unit_of("ecc", INCHES), "in");
}

}  // namespace
}  // namespace kvt
