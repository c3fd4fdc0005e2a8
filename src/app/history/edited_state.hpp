// edited_state: what a user has typed, ticked and chosen, as undoing brings it back. Results and
// enabling are none of it.
#pragma once

#include "base/fixed4.hpp"
#include "core/entries.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kvt {

class user;
struct program;

/// Which project is open, and what the title bar says of it.
struct edited_project {
    std::string path, name, typed_name, title;
    bool has_file = false;

    bool is_that_of(const edited_project& other) const {
        return path == other.path && name == other.name;
    }

    friend bool operator==(const edited_project&, const edited_project&) = default;
};

/// Parts that did not change are shared with the state before.
struct edited_state {
    std::shared_ptr<const entries> boxes;  ///< without the angle of the Design view
    std::shared_ptr<const edited_project> project;
    /// The names of the CNC files, which the project file keeps; no difference by themselves.
    std::shared_ptr<const std::vector<std::string>> cnc_files;
    fixed4 volumereqd_value;  ///< what the program read from its box; no difference by itself
    std::int16_t language = 0, drawing_units = 0, capacity_unit = 0;
    bool assist_on = false, assist_hidden = false;
};

/// The state of a program; shares with `before`, when there is one, what did not change since.
edited_state edited_state_of(const program& kavetta, const edited_state* before);

/// Whether the user sees no difference.
bool is_same(const edited_state& left, const edited_state& right);

/// The entries that differ, in the order of the forms.
std::vector<const entry_field*> differing_entries(const entries& left, const entries& right);

/// Puts a state into the program. No leave handler fires; results, notes and enabling stay, but the
/// boxes that a tick of the porting type opens follow it, and figures that stand in a unit are
/// shown in the one chosen. Entries of another project count as unsaved.
void restore_edited_state(program& kavetta, user& person, const edited_state& state);

}  // namespace kvt
