#include "geometry/outer_root.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"

#include <algorithm>
#include <string>

namespace kvt {

namespace {

void tell_limit(message limit, std::int16_t language, const std::string& value, teller& person) {
    person.show_message(std::string(message_text(limit, language)) + value);
}

}  // namespace

void keep_or_drop_outer_root(entries& boxes, design_params& design) {
    if (val(boxes.ecc) == design.ecc && val(boxes.radinnroot) == design.radinnroot) {
        design.outer_root = val(boxes.outer_root);
    } else {
        design.outer_root = 0.0;
        boxes.outer_root = number_text(design.outer_root);
    }
}

outer_root_limits limits_of_outer_root(const design_params& design, const rotor_profiles& rotors) {
    outer_root_limits limits;
    limits.minimum = checked_finite(design.ecc + rotors.base_radius + rotors.roll_radius +
                                    design.ecc - design.radouter);
    limits.maximum = std::max(limits.minimum, checked_finite(rotors.trochoid_r));
    return limits;
}

void apply_outer_root_rules(const rotor_profiles& rotors, const length_unit& unit,
                            std::int16_t language, design_params& design, entries& boxes,
                            teller& person) {
    const outer_root_limits limits = limits_of_outer_root(design, rotors);
    if (boxes.outer_root.empty()) {
        design.outer_root = limits.minimum;
        boxes.outer_root = number_text(unit.from_mm(limits.minimum));
    } else if (unit.to_mm(val(boxes.outer_root)) > limits.maximum) {
        const std::string shown = number_text(unit.from_mm(limits.maximum));
        tell_limit(message::maximum_root_radius, language, shown, person);
        boxes.outer_root = shown;
        design.outer_root = unit.to_mm(val(boxes.outer_root));
    }
    if (limits.minimum > design.outer_root) {
        design.outer_root = limits.minimum;
        const std::string shown = number_text(unit.from_mm(design.outer_root));
        tell_limit(message::minimum_root_radius, language, shown, person);
        boxes.outer_root = shown;
    }
}

bool exceeds_maximum_diameter(const design_params& design) {
    return design.maxdiameter / 2.0 < design.outer_root + design.minmaterial;
}

}  // namespace kvt
