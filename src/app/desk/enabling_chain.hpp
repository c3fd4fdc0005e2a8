// The enabling chain as one table: what each step of the work enables and what it disables
// downstream of it.
#pragma once

#include "core/enabling.hpp"

namespace kvt {

enum class chain_event {
    project_reset,  ///< New, Open, Previous design
    clear_design,
    profiles_started,  ///< Calculate Profiles has passed its start
    assist_succeeded,
    ports_cleared,
    ports_designed,
    porting_type_changed,  ///< a click on one of the four check boxes of the porting type
    performance_calculated
};

/// Applies the rows of an event to the enabling record.
void apply_chain(enabling& state, chain_event event);

}  // namespace kvt
