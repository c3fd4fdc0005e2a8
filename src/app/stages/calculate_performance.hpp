// Calculate Performance: the run behind the calc_perf button, from fluid, range and materials to
// perf_results.
#pragma once

namespace kvt {

class user;
struct program;

/// Runs the steps in their fixed order; false when the validation refused an entry, which is
/// emptied then. Needs the rotor profiles and the ports. A refused run leaves the earlier results
/// and perf_res; the charts are closed in any case. Throws run_time_error for a failure of a
/// routine: it has no handler.
bool calculate_performance(program& kavetta, user& person);

/// The calculation alone, without entries, forms and enablings: the grid and the eight routines,
/// and the texts of perf_res on the way.
void run_performance(program& kavetta, user& person);

}  // namespace kvt
