#include "app/stages/rotor_labels.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"

#include <string>

namespace kvt {

namespace {

constexpr double SMALL_AREA = 10.0;

std::string chamber_label(double area, double volume) {
    const double cut =
        area < SMALL_AREA ? floor_to_int(volume * 100.0) / 100.0 : floor_to_int(volume);
    return number_text(cut) + " mm3";
}

}  // namespace

void set_capacity_label(const rotor_profiles& rotors, labels& texts) {
    texts.capacity = commas_to_points(rotors.capacity.text());
}

void set_area_ratio_label(const rotor_profiles& rotors, labels& texts) {
    const double free_area = rotors.outer_area - rotors.inner_area;
    const double ratio =
        floor_to_int(checked_divide(free_area * 100.0 * 100.0, rotors.outer_area)) / 100.0;
    texts.area_ratio = number_text(ratio) + " %";
}

void set_max_chamber_label(const rotor_profiles& rotors, labels& texts) {
    texts.max_chamb_vol = chamber_label(rotors.max_chamber_area, rotors.max_chamber_volume);
}

void set_min_chamber_label(const rotor_profiles& rotors, labels& texts) {
    texts.min_chamb_vol = chamber_label(rotors.min_chamber_area, rotors.min_chamber_volume);
}

}  // namespace kvt
