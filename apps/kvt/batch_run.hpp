// batch_run: what a user would do by hand: open the project, type into the entries, press Calculate
// Profiles, Design Ports and Calculate Performance.
#pragma once

#include "base/run_time_error.hpp"
#include "core/app_state.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/typed_entry.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

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
    bool refused =
        false;  ///< Design Ports or Calculate Performance refused an entry; the end stays ok
};

/// The name of an end as reports write it: "ok", "validation", ...
std::string_view batch_end_name(batch_end end);

/// The exit statuses of the program.
inline constexpr int EXIT_OK = 0;
inline constexpr int EXIT_REFUSED =
    1;  ///< the design was refused or failed, or a file could not be written
inline constexpr int EXIT_USAGE = 2;  ///< the command line was wrong; nothing was read
inline constexpr int EXIT_UNREADABLE =
    3;  ///< the project file could not be read, or there is no memory

int exit_status(batch_end end);
/// EXIT_REFUSED, too, for a run that ended ok with a refused port or performance entry.
int exit_status(const batch_result& result);

/// "Run-time error 11: Division by zero" in the given language, with the reason for a file that is
/// too large, or none.
std::string run_time_error_line(const run_time_error& error, std::int16_t language);

/// Opens the project, selects the capacity unit and types the entries. Answers the end when it came
/// already: read_error (told on the user's stream only, like the line in the status bar) or fatal
/// (told by a message).
std::optional<batch_end> open_design(program& kavetta, batch_user& person,
                                     const design_source& source);

/// open_design, then the Design assist: ok when it found dimensions, validation when it refused an
/// entry, failure when they do not fit the maximum diameter.
batch_end find_design(program& kavetta, batch_user& person, const design_source& source);

/// open_design, then the stages up to `last` one after the other, as long as Calculate Profiles
/// ended ok. A refused port does not keep Calculate Performance from running, as on the screen.
batch_result calculate_design(program& kavetta, batch_user& person, const design_source& source,
                              calc_stage last);
/// The stages alone, for a design that is open.
batch_result calculate_open_design(program& kavetta, batch_user& person, calc_stage last);

}  // namespace kvt
