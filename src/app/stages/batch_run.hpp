// batch_run: what a user would do by hand, without one: open the project, type into the entries,
// press Calculate Profiles, Design Ports and Calculate Performance. For whoever runs designs in
// series; what is told goes to the given user, nothing is printed here.
#pragma once

#include "app/stages/typed_entry.hpp"
#include "base/run_time_error.hpp"
#include "core/app_state.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

class user;
struct program;

/// Where a run takes its design from.
struct design_source {
    std::string project;             ///< path of the project file
    std::vector<typed_entry> typed;  ///< typed after the project is open, in this order
    std::int16_t capacity_unit = 0;  ///< selected before anything is typed; 0 leaves the project's
    std::int16_t language = ENGLISH;
};

/// How a run ended. read_error: the file could not be read; fatal: a run-time failure that no
/// command handles; the others are the ends of Calculate Profiles.
enum class batch_end { ok, validation, failure, closing, error, fatal, read_error };

/// The stages of a calculation in their order; each needs the one before.
enum class calc_stage { profiles, ports, performance };

struct batch_result {
    batch_end end = batch_end::ok;
    bool profiles_reached =
        false;  ///< Calculate Profiles got past the validation, so its records say something
    bool ports_reached = false;        ///< Design Ports ran, so port_params says something
    bool performance_reached = false;  ///< Calculate Performance got past its validation
    bool ports_refused = false;        ///< Design Ports refused an entry; the end stays ok
    bool performance_refused = false;  ///< so did Calculate Performance

    /// Nothing of the design was refused.
    bool is_accepted() const {
        return end == batch_end::ok && !ports_refused && !performance_refused;
    }
};

/// The name of an end as reports write it: "ok", "validation", ...
std::string_view batch_end_name(batch_end end);

/// "Run-time error 11: Division by zero" in the given language, with the reason for a file that is
/// too large, or none.
std::string run_time_error_line(const run_time_error& error, std::int16_t language);

/// Opens the project, selects the capacity unit and types the entries. Answers the end when it came
/// already: read_error (told by a line in the status bar, not by a message) or fatal
/// (told by a message).
std::optional<batch_end> open_design(program& kavetta, user& person, const design_source& source);

/// open_design, then the Design assist: ok when it found dimensions, validation when it refused an
/// entry, failure when they do not fit the maximum diameter.
batch_end find_design(program& kavetta, user& person, const design_source& source);

/// open_design, then the stages up to `last` one after the other, as long as Calculate Profiles
/// ended ok. A refused port does not keep Calculate Performance from running, as on the screen.
batch_result calculate_design(program& kavetta, user& person, const design_source& source,
                              calc_stage last);
/// Types further entries into a design that is open, then the stages.
batch_result type_and_calculate(program& kavetta, user& person,
                                const std::vector<typed_entry>& typed, calc_stage last);
/// The stages alone, for a design that is open.
batch_result calculate_open_design(program& kavetta, user& person, calc_stage last);

}  // namespace kvt
