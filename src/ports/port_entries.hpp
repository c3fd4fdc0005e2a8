// The entries of the ports: defaults for the empty ones, their values in millimetres, the rotor
// entries read again.
// Source: docs/formulas/ports.md, "Defaults".
#pragma once

#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/rotor_profiles.hpp"
#include "ports/port_fields.hpp"
#include "ports/port_params.hpp"

#include <string>

namespace kvt {

/// mm as a text in the unit of the entries, not cut: "12.7" or "0.5".
std::string length_text(double mm, const length_unit& unit);

/// mm as a text in the unit of the entries; in inches cut to three decimals.
std::string cut_length_text(double mm, const length_unit& unit);

/// The value of a length entry, mm.
double length_of(const std::string& text, const length_unit& unit);

/// Reads the four angles of a port, degrees. An empty entry takes its chamber angle v (the start
/// angles), or 180 - v (the end angles), and shows Int(v * 100) / 100, or 180 - Int(v * 100) / 100.
/// Kept: this run computes with the exact default, the next one with the text; port_entries_test
/// holds it.
void read_port_angles(const port_fields& port, const rotor_profiles& rotors, entries& boxes,
                      port_params& ports);

/// Puts radinnroot and outer_root, not cut, into the radius entries of a port whose value is
/// exactly 0.
void fill_port_radii(const port_fields& port, const design_params& design, const length_unit& unit,
                     entries& boxes);

/// Reads both radii of a port and the common fillet radius, mm.
void read_port_radii(const port_fields& port, const entries& boxes, const length_unit& unit,
                     port_params& ports);

/// Reads the rotor entries again but for radial_clear, fillet and outer_root, and computes
/// base_radius, roll_radius and lobe_centre_offset anew. Throws overflow for a number of lobes or a
/// resolution that doesn't fit its counter.
void reread_design(const entries& boxes, const length_unit& unit, design_params& design,
                   rotor_profiles& rotors);

}  // namespace kvt
