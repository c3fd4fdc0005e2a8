// The limits of random designs: accepted just inside, refused just outside. Hard designs are among
// them: their dimensions are drawn anew until the rotors are refused, or are at the edge of it.
#include "app/trial/design_trial.hpp"
#include "app/trial/entry_limits.hpp"
#include "base/number_text.hpp"
#include "core/entry_numbers.hpp"
#include "support/random_design.hpp"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr int DESIGNS = 200;
/// Of the end; of a degree for an angle next to 0, of a millionth for any other end there.
constexpr double JUST = 1e-6;
constexpr double ALTERNATING_DEG = 1e-4;

constexpr std::array ENTRIES = {
    "ecc",        "radouter",         "radinnroot",        "numlobes",
    "clearn",     "fillet",           "shaftdiameter",     "maxdiameter",
    "port_radii", "outlet_end_inner", "inlet_start_inner", "minmaterial"};

/// Every third design as an engineer may leave it: a dimension that is often refused.
program drawn_design(random_values& random, int number) {
    program kavetta = random_design(random);
    if (number % 3 == 0) {
        std::string& box =
            kavetta.entries.*
            find_entry(ENTRIES.at(static_cast<std::size_t>(random.whole(0, 2))))->member;
        box = typed_number(val(box) * random.real(0.4, 2.0));
    }
    return kavetta;
}

struct tried_entry {
    const program& kavetta;
    const entry_field& entry;
    calc_stage last;

    bool accepts(double number) const {
        return try_design(kavetta, typed_entry{std::string(entry.name), number_text(number)}, last)
            .accepted;
    }
};

/// Checks one end from both sides. False where it has no inner side: angles within 1e-4 degrees of
/// 0 can be accepted and refused in turn, as their last digits decide; the end is one of these.
bool expect_end(const tried_entry& tried, const entry_limit& end) {
    const double outward = end.refused < end.accepted ? -1.0 : 1.0;
    const bool is_angle = number_kind_of(tried.entry.name) == number_kind::angle;
    const double size = std::max(std::abs(end.accepted), is_angle ? 1.0 : JUST);
    const bool is_whole = tried.entry.name == std::string_view("numlobes");
    const double just = is_whole ? 1.0 : JUST * size;
    EXPECT_TRUE(tried.accepts(end.accepted)) << end.accepted;
    EXPECT_FALSE(tried.accepts(end.accepted + outward * just)) << end.accepted;
    EXPECT_TRUE(tried.accepts(val(end.shown))) << end.shown;
    const bool has_inner_side = is_whole || tried.accepts(end.accepted - outward * just);
    EXPECT_TRUE(has_inner_side || (is_angle && std::abs(end.accepted) < ALTERNATING_DEG))
        << end.accepted;
    return has_inner_side;
}

TEST(entry_limits_property, are_right_at_both_ends) {
    random_values random;
    int ends = 0;
    int alternating = 0;
    const int count = property_count(DESIGNS);
    for (int number = 0; number < count; ++number) {
        const program kavetta = drawn_design(random, number);
        const entry_field& entry =
            *find_entry(ENTRIES.at(static_cast<std::size_t>(random.whole(0, ENTRIES.size() - 1))));
        const calc_stage last = random.whole(0, 1) == 0 ? calc_stage::profiles : calc_stage::ports;
        SCOPED_TRACE(std::string(entry.name) + " of design " + std::to_string(number));
        const auto limits = find_limits(kavetta, entry, last);
        for (const auto end : {&entry_limits::lowest, &entry_limits::highest}) {
            if (limits && (*limits).*end) {
                alternating += expect_end({kavetta, entry, last}, *((*limits).*end)) ? 0 : 1;
                ++ends;
            }
        }
    }
    EXPECT_GE(ends, count / 2);
    EXPECT_LE(alternating, 1 + ends / 100);
}

}  // namespace
}  // namespace kvt
