// port_work: what the steps of Design Ports read, fill, and whom they tell.
#pragma once

#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/rotor_profiles.hpp"
#include "core/teller.hpp"
#include "core/text_table.hpp"
#include "ports/port_params.hpp"

#include <cstdint>

namespace kvt {

struct port_work {
    port_params& ports;
    design_params& design;   ///< its entries are read again by every step
    rotor_profiles& rotors;  ///< its circles are computed again by every step
    entries& boxes;          ///< defaults and corrections are written back, refused entries emptied
    teller& person;
    std::int16_t language = 1;
    const length_unit& unit = length_unit_of(MILLIMETRES);
    bool inlet_rebuilt = false;  ///< the outlet built the inlet again, and it was finished

    void tell(message id) const { person.show_message(message_text(id, language)); }
    /// Empties an entry that a message refused, and gives it the focus.
    void refuse(std::string entries::*box, std::string_view control) const {
        (boxes.*box).clear();
        person.set_focus(control);
    }
};

/// How a step ended. refused: its message was shown, and the outline of an earlier run stands.
enum class port_end { finished, refused };

}  // namespace kvt
