// Calculate Profiles: the run behind the Calc button, from the entries to the rotor pair on the
// screen.
#pragma once

namespace kvt {

class user;
struct program;

/// How a run ended.
enum class run_end {
    ok,          ///< all steps done
    validation,  ///< stopped by the validation of the entries, before anything was computed
    failure,     ///< stopped by the shaft, fit or fillet check: the view is empty
    closing,  ///< ended after a message of the curvature or crossing check: the view keeps what it
              ///< had
    error     ///< a run-time failure from the fillet step on, told by one message
};

/// Runs the steps in their fixed order. Throws run_time_error for a failure before the fillet step.
run_end calculate_profiles(program& kavetta, user& person);

}  // namespace kvt
