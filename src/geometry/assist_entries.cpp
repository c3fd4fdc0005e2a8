#include "geometry/assist_entries.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "core/capacity_unit.hpp"
#include "geometry/required_entries.hpp"

#include <array>

namespace kvt {

namespace {

using box = std::string entries::*;

/// A length and the entry it is read from.
struct assist_length {
    box entry;
    double design_params::*field;
};

constexpr std::array<assist_length, 6> ASSIST_LENGTHS = {{
    {&entries::thick, &design_params::thick},
    {&entries::maxdiameter, &design_params::maxdiameter},
    {&entries::minmaterial, &design_params::minmaterial},
    {&entries::shaftdiameter, &design_params::shaftdiameter},
    {&entries::axial_clear, &design_params::axial_clear},
    {&entries::radial_clear, &design_params::radial_clear},
}};

std::string in_entry_unit(double millimetres, const length_unit& unit) {
    return fixed4::from(unit.from_mm(millimetres)).text();
}

}  // namespace

std::optional<message> first_refused_assist_entry(const entries& boxes) {
    if (!(val(boxes.volumereqd) > 0.0)) {
        return message::input_volumereqd;
    }
    return first_missing_entry(boxes, REQUIRED_ENTRIES);
}

void read_assist_entries(const entries& boxes, const length_unit& unit, design_params& design) {
    design.numlobes = to_int32(val(boxes.numlobes));
    // Half of the clearance is taken first and converted then, unlike in Calculate Profiles.
    design.clearn_half = checked_finite(unit.to_mm(val(boxes.clearn) / 2.0));
    for (const auto& [entry, field] : ASSIST_LENGTHS) {
        design.*field = checked_finite(unit.to_mm(val(boxes.*entry)));
    }
}

fixed4 required_capacity_cc(const entries& boxes, std::int16_t capacity_unit) {
    return fixed4::from(val(boxes.volumereqd) * cc_in_capacity_unit(capacity_unit));
}

void write_root_and_eccentricity(const design_params& design, const length_unit& unit,
                                 entries& boxes) {
    boxes.ecc = unit.is_of_records() ? number_text(design.ecc) : in_entry_unit(design.ecc, unit);
    boxes.radinnroot = in_entry_unit(design.radinnroot, unit);
}

void write_lobe_radius(const design_params& design, const length_unit& unit, entries& boxes) {
    boxes.radouter = in_entry_unit(design.radouter, unit);
}

void write_assist_outer_root(const design_params& design, entries& boxes) {
    boxes.outer_root = fixed4::from(design.outer_root).text();
}

}  // namespace kvt
