// entries: the texts of all boxes of the input forms, exactly as the user typed them, and the check
// boxes.
#pragma once

#include "base/named_fields.hpp"

#include <span>
#include <string>
#include <string_view>

namespace kvt {

/// Texts are UTF-8. Check boxes and option buttons hold "0" or "1". The initial texts are those of
/// a new program.
struct entries {
    // Form1: the rotor dimensions.
    std::string volumereqd = "0", numlobes = "3", ecc = "0", radouter = "0", radinnroot = "0",
                clearn = "0";
    std::string thick = "1", shaftdiameter = "0", minmaterial = "0", maxdiameter = "1",
                axial_clear = "0";
    std::string radial_clear = "0", fillet = "0", outer_root, coarseness = "1";
    // portdes: the ports and the metering groove.
    std::string inlet_start_inner, inlet_start_outer, inlet_end_inner, inlet_end_outer;
    std::string inlet_inner_radius, inlet_outer_radius;
    std::string outlet_start_inner, outlet_start_outer, outlet_end_inner, outlet_end_outer;
    std::string Outlet_inner_radius, Outlet_outer_radius;
    std::string port_radii, groove_length, groove_width, groove_depth;
    std::string inlet_double_sided = "0", outlet_double_sided = "0", shadow_ports = "0",
                metering_groove = "0";
    // Perffrm: fluid, range and materials.
    std::string fluid_density, kin_visc, vap_press, bulk_mod_text, speed_lo, speed_hi, pressure_lo,
        pressure_hi;
    std::string young_inner, young_outer, poissons_inner, poissons_outer, friction;
    std::string Face_area_value = "100", OD_area_value = "100", UTS_value;
    // viewwinfrm: the rotation angle, degrees.
    std::string rotated_angle = "0";
    // select_graphs: the charts to draw.
    std::string flow_checkbox = "0", power_checkbox = "0", stress_checkbox = "0",
                ripple_checkbox = "0";
    std::string ve_checkbox = "0", effic_checkbox = "0", ovr_effic_checkbox = "0";

    friend bool operator==(const entries&, const entries&) = default;
};

/// A check box or an option button is on.
inline bool is_ticked(const std::string& check) {
    return check == "1";
}

enum class entry_kind { text, check };

/// Whether the text of a check box or option button says that it is ticked.
inline bool is_ticked(std::string_view check) {
    return check == "1";
}

/// One row of the table of entries.
struct entry_field {
    std::string_view form;
    std::string_view name;
    std::string entries::*member;
    entry_kind kind;
};

/// Every entry in the order of the forms.
std::span<const entry_field> entry_fields();

/// The row of an entry, or nullptr for an unknown name.
const entry_field* find_entry(std::string_view name);

/// The result labels and list texts of the forms: outputs that the program sets and the forms show.
struct labels {
    std::string capacity = "0.0";  ///< Approx. Capacity, text of the fixed-point value
    std::string area_ratio;        ///< "28.65 %"
    std::string max_chamb_vol;     ///< "1038 mm3"
    std::string min_chamb_vol;     ///< "35.35 mm3"
    std::string units_label = "Lit/Min/1000rpm";  ///< the capacity unit beside the capacity
    std::string unittype = "Lit/Min/1000rpm";     ///< selected text of the capacity unit list
    std::string hiddenprojnamelabel;              ///< the name typed in the New Project dialog
    std::string title = "Kavetta V2021";          ///< title of the main window
    std::string max_speed;                        ///< " 7403 RPM": highest speed without cavitation
    std::string Label5;                           ///< of perf_res: what limits that speed
    std::string max_shaft_side_load;              ///< "216.78 N"
    std::string side_load_direction;              ///< "-29.27 °"
    std::string max_cutter_inner;  ///< "15.36 mm": largest tool that can cut the inner rotor
    std::string Label1;            ///< of perf_res: the pressure ripple in percent
};

using label_field = named_field<labels, std::string>;

/// The labels that reports show (not the title and the hidden project name).
std::span<const label_field> label_fields();

}  // namespace kvt
