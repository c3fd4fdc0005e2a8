#include "core/entries.hpp"

#include <array>

namespace kvt {

namespace {

#define KVT_TEXT(form, name)                          \
    entry_field {                                     \
        form, #name, &entries::name, entry_kind::text \
    }
#define KVT_CHECK(form, name)                          \
    entry_field {                                      \
        form, #name, &entries::name, entry_kind::check \
    }

constexpr std::array ENTRY_FIELDS = {
    KVT_TEXT("Form1", volumereqd),
    KVT_TEXT("Form1", numlobes),
    KVT_TEXT("Form1", ecc),
    KVT_TEXT("Form1", radouter),
    KVT_TEXT("Form1", radinnroot),
    KVT_TEXT("Form1", clearn),
    KVT_TEXT("Form1", thick),
    KVT_TEXT("Form1", shaftdiameter),
    KVT_TEXT("Form1", minmaterial),
    KVT_TEXT("Form1", maxdiameter),
    KVT_TEXT("Form1", axial_clear),
    KVT_TEXT("Form1", radial_clear),
    KVT_TEXT("Form1", fillet),
    KVT_TEXT("Form1", outer_root),
    KVT_TEXT("Form1", coarseness),
    KVT_TEXT("portdes", inlet_start_inner),
    KVT_TEXT("portdes", inlet_start_outer),
    KVT_TEXT("portdes", inlet_end_inner),
    KVT_TEXT("portdes", inlet_end_outer),
    KVT_TEXT("portdes", inlet_inner_radius),
    KVT_TEXT("portdes", inlet_outer_radius),
    KVT_TEXT("portdes", outlet_start_inner),
    KVT_TEXT("portdes", outlet_start_outer),
    KVT_TEXT("portdes", outlet_end_inner),
    KVT_TEXT("portdes", outlet_end_outer),
    KVT_TEXT("portdes", Outlet_inner_radius),
    KVT_TEXT("portdes", Outlet_outer_radius),
    KVT_TEXT("portdes", port_radii),
    KVT_TEXT("portdes", groove_length),
    KVT_TEXT("portdes", groove_width),
    KVT_TEXT("portdes", groove_depth),
    KVT_CHECK("portdes", inlet_double_sided),
    KVT_CHECK("portdes", outlet_double_sided),
    KVT_CHECK("portdes", shadow_ports),
    KVT_CHECK("portdes", metering_groove),
    KVT_TEXT("Perffrm", fluid_density),
    KVT_TEXT("Perffrm", kin_visc),
    KVT_TEXT("Perffrm", vap_press),
    KVT_TEXT("Perffrm", bulk_mod_text),
    KVT_TEXT("Perffrm", speed_lo),
    KVT_TEXT("Perffrm", speed_hi),
    KVT_TEXT("Perffrm", pressure_lo),
    KVT_TEXT("Perffrm", pressure_hi),
    KVT_TEXT("Perffrm", young_inner),
    KVT_TEXT("Perffrm", young_outer),
    KVT_TEXT("Perffrm", poissons_inner),
    KVT_TEXT("Perffrm", poissons_outer),
    KVT_TEXT("Perffrm", friction),
    KVT_TEXT("Perffrm", Face_area_value),
    KVT_TEXT("Perffrm", OD_area_value),
    KVT_TEXT("Perffrm", UTS_value),
    KVT_TEXT("viewwinfrm", rotated_angle),
    KVT_CHECK("select_graphs", flow_checkbox),
    KVT_CHECK("select_graphs", power_checkbox),
    KVT_CHECK("select_graphs", stress_checkbox),
    KVT_CHECK("select_graphs", ripple_checkbox),
    KVT_CHECK("select_graphs", ve_checkbox),
    KVT_CHECK("select_graphs", effic_checkbox),
    KVT_CHECK("select_graphs", ovr_effic_checkbox),
};

#undef KVT_TEXT
#undef KVT_CHECK

constexpr std::array LABEL_FIELDS = {
    label_field{"Form1", "capacity", &labels::capacity},
    label_field{"Form1", "area_ratio", &labels::area_ratio},
    label_field{"Form1", "max_chamb_vol", &labels::max_chamb_vol},
    label_field{"Form1", "min_chamb_vol", &labels::min_chamb_vol},
    label_field{"Form1", "units_label", &labels::units_label},
    label_field{"Form1", "unittype", &labels::unittype},
    label_field{"perf_res", "max_speed", &labels::max_speed},
    label_field{"perf_res", "Label5", &labels::Label5},
    label_field{"perf_res", "max_shaft_side_load", &labels::max_shaft_side_load},
    label_field{"perf_res", "side_load_direction", &labels::side_load_direction},
    label_field{"perf_res", "max_cutter_inner", &labels::max_cutter_inner},
    label_field{"perf_res", "Label1", &labels::Label1},
};

}  // namespace

std::span<const entry_field> entry_fields() {
    return ENTRY_FIELDS;
}

const entry_field* find_entry(std::string_view name) {
    return find_named(entry_fields(), name);
}

std::span<const label_field> label_fields() {
    return LABEL_FIELDS;
}

}  // namespace kvt
