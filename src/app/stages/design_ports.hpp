// Design Ports and Clear Values: the buttons design_ports and clear_ports of portdes.
#pragma once

namespace kvt {

class user;
struct program;

/// Which outlines a run of Design Ports finished. A step that refused its port showed a message;
/// the later ones ran all the same.
struct ports_designed {
    bool inlet = false;
    bool outlet = false;
    bool groove = false;  ///< stays false without a metering groove
    bool inlet_rebuilt =
        false;  ///< the inlet was refused, and finished when the outlet built it again

    friend bool operator==(const ports_designed&, const ports_designed&) = default;
};

/// Builds inlet, outlet and, when ticked, the metering groove from the entries; draws them; writes
/// the report after a finished outlet. A groove entry that reads as 0 is told, emptied and focused
/// before anything is built. With recalc_quiet -1 the result forms and the enablings stay as they
/// are; recalc_quiet is 0 afterwards. Throws run_time_error for a vertical side, another quotient
/// by 0, or a report that can't be written.
ports_designed design_ports(program& kavetta, user& person);

/// The last step of Calculate Profiles: designs the ports again for the new rotors when the view
/// shows an inlet. In a run asked for by Zoom All it is quiet. Throws like design_ports;
/// recalc_quiet is 0 afterwards in any case.
void design_ports_again(program& kavetta, user& person);

/// Empties the sixteen text entries, unticks the four check boxes and clears the ports in the
/// Design view. The outlines and their counters stay.
void clear_ports(program& kavetta, user& person);

}  // namespace kvt
