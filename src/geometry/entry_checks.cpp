#include "geometry/entry_checks.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "geometry/required_entries.hpp"

#include <array>

namespace kvt {

namespace {

using box = std::string entries::*;

constexpr std::array<box, 7> EMPTY_MEANS_ZERO = {
    &entries::radinnroot,    &entries::radouter,    &entries::clearn, &entries::volumereqd,
    &entries::shaftdiameter, &entries::minmaterial, &entries::fillet};

constexpr std::array<box, 13> DECIMAL_COMMA_ALLOWED = {
    &entries::volumereqd, &entries::shaftdiameter, &entries::thick,       &entries::maxdiameter,
    &entries::clearn,     &entries::minmaterial,   &entries::axial_clear, &entries::radial_clear,
    &entries::ecc,        &entries::radinnroot,    &entries::radouter,    &entries::fillet,
    &entries::outer_root};

constexpr double SMALLEST_LOBE_NUMBER = 3.0;

/// Checked after the eccentricity, which is tested as a text.
constexpr std::array<required_entry, 3> LAST_CHECKS = {{
    {&entries::radinnroot, message::input_radinnroot},
    {&entries::radouter, message::input_radouter},
    {&entries::coarseness, message::input_coarseness},
}};

void clean_up_thickness(entries& boxes, teller& person, std::int16_t language) {
    if (boxes.thick.empty()) {
        person.show_message(message_text(message::rotors_need_thickness, language));
        boxes.thick = "1";
    }
}

void clean_up_lobe_number(entries& boxes, design_params& design, teller& person,
                          std::int16_t language) {
    design.numlobes = integer_of_text(boxes.numlobes);
    // The text decides, not the rounded number: "2.7" is refused.
    if (val(boxes.numlobes) < SMALLEST_LOBE_NUMBER) {
        person.show_message(message_text(message::lobe_number_minimum, language));
        boxes.numlobes = "3";
        design.numlobes = 3;
    }
}

/// A dimension and the entry it is read from.
struct dimension {
    box entry;
    double design_params::*field;
};

constexpr std::array<dimension, 10> DIMENSIONS = {{
    {&entries::ecc, &design_params::ecc},
    {&entries::radouter, &design_params::radouter},
    {&entries::thick, &design_params::thick},
    {&entries::radinnroot, &design_params::radinnroot},
    {&entries::shaftdiameter, &design_params::shaftdiameter},
    {&entries::maxdiameter, &design_params::maxdiameter},
    {&entries::axial_clear, &design_params::axial_clear},
    {&entries::radial_clear, &design_params::radial_clear},
    {&entries::fillet, &design_params::fillet},
    {&entries::minmaterial, &design_params::minmaterial},
}};

}  // namespace

void clean_up_entries(entries& boxes, design_params& design, teller& person,
                      std::int16_t language) {
    clean_up_thickness(boxes, person, language);
    clean_up_lobe_number(boxes, design, person, language);
    for (const box entry : EMPTY_MEANS_ZERO) {
        if ((boxes.*entry).empty()) {
            boxes.*entry = "0";
        }
    }
    for (const box entry : DECIMAL_COMMA_ALLOWED) {
        boxes.*entry = commas_to_points(boxes.*entry);
    }
}

std::optional<refused_entry> first_refused_entry(const entries& boxes) {
    if (const auto missing = first_missing_entry(boxes, REQUIRED_ENTRIES)) {
        return refused_entry{*missing, ""};
    }
    if (boxes.ecc == "0" || boxes.ecc.empty()) {
        return refused_entry{message::eccentricity_zero, "ecc"};
    }
    if (const auto missing = first_missing_entry(boxes, LAST_CHECKS)) {
        return refused_entry{*missing, ""};
    }
    return std::nullopt;
}

void read_entries(const entries& boxes, const length_unit& unit, design_params& design,
                  rotor_profiles& rotors) {
    design.numlobes = to_int32(val(boxes.numlobes));
    for (const auto& [entry, field] : DIMENSIONS) {
        design.*field = unit.to_mm(val(boxes.*entry));
    }
    design.clearn_half = unit.half_to_mm(val(boxes.clearn));
    design.coarseness = to_int16(val(boxes.coarseness));
    rotors.inner_plot_len =
        checked_divide(rotors.profile_points + rotors.profile_points, design.coarseness) + 1.0;
}

bool shaft_material_too_thin(const design_params& design) {
    return 2.0 * design.radinnroot < design.minmaterial + design.shaftdiameter;
}

}  // namespace kvt
