#include "core/entry_names.hpp"

#include "core/text_table.hpp"

#include <algorithm>
#include <array>

namespace kvt {

namespace {

/// The controls whose captions say what an entry is.
struct entry_place {
    std::string_view entry;
    const char* label;
    std::string_view group{};  ///< its caption comes before
};

constexpr std::array PLACES = {
    entry_place{"volumereqd", "Label13"},
    entry_place{"numlobes", "Label7"},
    entry_place{"ecc", "Label3"},
    entry_place{"radouter", "Label5"},
    entry_place{"radinnroot", "Label10"},
    entry_place{"clearn", "Label4"},
    entry_place{"thick", "Label8"},
    entry_place{"shaftdiameter", "Label2"},
    entry_place{"minmaterial", "Label12"},
    entry_place{"maxdiameter", "Label9"},
    entry_place{"axial_clear", "Label15"},
    entry_place{"radial_clear", "Label21"},
    entry_place{"fillet", "Label6"},
    entry_place{"outer_root", "Label20"},
    entry_place{"coarseness", "Label1"},
    entry_place{"inlet_start_inner", "Label2", "Frame2"},
    entry_place{"inlet_start_outer", "Label3", "Frame2"},
    entry_place{"inlet_end_inner", "Label4", "Frame2"},
    entry_place{"inlet_end_outer", "Label5", "Frame2"},
    entry_place{"inlet_inner_radius", "Label15", "Frame2"},
    entry_place{"inlet_outer_radius", "Label14", "Frame2"},
    entry_place{"outlet_start_inner", "Label9", "Frame3"},
    entry_place{"outlet_start_outer", "Label8", "Frame3"},
    entry_place{"outlet_end_inner", "Label7", "Frame3"},
    entry_place{"outlet_end_outer", "Label6", "Frame3"},
    entry_place{"Outlet_inner_radius", "Label13", "Frame3"},
    entry_place{"Outlet_outer_radius", "Label16", "Frame3"},
    entry_place{"port_radii", "Label1"},
    entry_place{"groove_length", "Label10", "metering_groove"},
    entry_place{"groove_width", "Label11", "metering_groove"},
    entry_place{"groove_depth", "Label12", "metering_groove"},
    entry_place{"fluid_density", "Label3"},
    entry_place{"kin_visc", "Label1"},
    entry_place{"vap_press", "Label2"},
    entry_place{"bulk_mod_text", "Label4"},
    entry_place{"friction", "Label14"},
    entry_place{"Face_area_value", "Face_area_label"},
    entry_place{"OD_area_value", "OD_area_label"},
    entry_place{"UTS_value", "UTS_label"},
    entry_place{"rotated_angle", "rotate_label"},
};

const entry_place* find_place(std::string_view entry) {
    const auto place = std::ranges::find(PLACES, entry, &entry_place::entry);
    return place == PLACES.end() ? nullptr : &*place;
}

}  // namespace

const char* entry_label(std::string_view entry) {
    const entry_place* place = find_place(entry);
    return place == nullptr ? "" : place->label;
}

std::string entry_name(const entry_field& entry, const captions& shown, std::int16_t language) {
    if (const text_row* spoken = find_text(text_kind::spoken, entry.form, entry.name)) {
        return std::string(row_text(*spoken, language));
    }
    const entry_place* place = find_place(entry.name);
    if (place == nullptr) {
        return std::string(shown.of(entry.form, entry.name));
    }
    std::string name(shown.of(entry.form, place->label));
    if (!place->group.empty()) {
        name = std::string(shown.of(entry.form, place->group)) + ": " + name;
    }
    return name;
}

}  // namespace kvt
