// Design assist: the switch Des_assist_check, and the run behind the button designer.
#pragma once

#include <cstdint>
#include <string_view>

namespace kvt {

class user;
struct app_state;
struct program;

/// How a run of the assist ended.
enum class assist_end {
    found,         ///< ecc, radinnroot, radouter and outer_root are in their entries
    refused,       ///< an entry is not above 0; nothing was written
    does_not_fit,  ///< the rotors exceed maxdiameter; ecc, radinnroot and outer_root are in their
                   ///< entries
};

/// Looks for a rotor pair of the required capacity and writes it into the entries; profiles must be
/// calculated anew afterwards. Clears the ports, sets profiles_calculated 0 and disables
/// design_ports. The outlines of an earlier run stay in the Design view. Ends in finite time for
/// any entries. Throws run_time_error when numlobes is no number, for a division by 0 in the
/// search, and for values that no longer fit their types; what was written to the entries before it
/// stays.
assist_end design_assist(program& kavetta, user& person);

/// Switches the assist on or off (the click on Des_assist_check). Entries can be edited in both
/// states.
void set_assist(program& kavetta, bool on);

/// Off, with the button designer and the frame lines hidden until the assist is switched on: after
/// New and Open.
void hide_assist(program& kavetta);

/// What the assist's controls look like.
struct assist_look {
    std::string_view caption;  ///< of Des_assist_check
    bool designer_enabled;     ///< Calc is enabled when designer is not
    bool designer_visible;
    bool green;  ///< Des_assist_bkgnd, Des_assist_check and the frame lines are green (0, 255, 0);
                 ///< else they have the colour of a button face, the frame lines black
    bool frame_lines_visible;  ///< Line1, Line3, Line4, Line5 of Form1

    friend bool operator==(const assist_look&, const assist_look&) = default;
};

assist_look look_of_assist(const app_state& state);

}  // namespace kvt
