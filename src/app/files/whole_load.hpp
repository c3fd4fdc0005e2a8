// whole_load: a load of a project that is there as a whole, or not at all.
#pragma once

#include "app/program.hpp"
#include "base/run_time_error.hpp"
#include "core/failure_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <string>
#include <utility>

namespace kvt {

/// Loads; what that has assigned before it fails is taken back, and the run_time_error goes on.
template <typename loading>
void load_whole(program& kavetta, const loading& load) {
    program before = kavetta;
    try {
        load();
    } catch (const run_time_error&) {
        kavetta = std::move(before);
        throw;
    }
}

/// A text and behind it the failure's, in the status bar.
inline void show_failure_status(const program& kavetta, user& person, message id,
                                const run_time_error& error) {
    person.show_status(std::string(message_text(id, kavetta.app_state.language)) +
                       failure_text(error, kavetta.app_state.language));
}

}  // namespace kvt
