// The result labels of the Design form, made from the numbers of rotor_profiles.
#pragma once

#include "core/entries.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// "6.0137", in the unit of the record.
void set_capacity_label(const rotor_profiles& rotors, labels& texts);

/// Int((A_o - A_i) * 100 * 100 / A_o) / 100, followed by " %": "28.65 %".
/// Source: docs/formulas/chambers.md, "Area ratio".
void set_area_ratio_label(const rotor_profiles& rotors, labels& texts);

/// max_chamb_vol and min_chamb_vol: "1038 mm3", with two decimals cut when the area is below 10
/// mm2. Kept: the test is on the area, before the multiplication by thick; the unit is mm3 in inch
/// mode too; rotor_labels_test holds it. Source: docs/formulas/chambers.md, "Labels".
void set_max_chamber_label(const rotor_profiles& rotors, labels& texts);
void set_min_chamber_label(const rotor_profiles& rotors, labels& texts);

}  // namespace kvt
