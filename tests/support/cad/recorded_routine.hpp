// A routine of a CAD package run against the recorder or a stand-in.
#pragma once

#include "app/program.hpp"
#include "automation/recorder_host.hpp"
#include "base/run_time_error.hpp"
#include "cad/model_session.hpp"

#include <cstddef>
#include <string_view>
#include <variant>
#include <vector>

namespace kvt {

/// Runs the routine; a run-time error passes through. Answers the percents that it showed.
inline std::vector<int> run_routine(automation::host& programs, model_routine routine,
                                    const program& kavetta) {
    const model_source source{kavetta.design_params, kavetta.rotor_profiles, kavetta.port_params,
                              kavetta.entries, length_unit_of(kavetta.app_state)};
    std::vector<int> percents;
    model_session session{programs, source, [&](int percent) { percents.push_back(percent); }};
    routine(session);
    return percents;
}

/// Runs the routine; answers the number of the run-time error that it ended with, else 0.
inline int run_recorded(automation::host& programs, model_routine routine, const program& kavetta) {
    try {
        run_routine(programs, routine, kavetta);
    } catch (const run_time_error& error) {
        return error.number();
    }
    return 0;
}

/// The number of the first call of a member, counted from 1; 0 without one.
inline std::size_t first_call(const automation::recorder_host& host, std::string_view member) {
    std::size_t number = 0;
    for (const automation::recorded_call& call : host.calls()) {
        ++number;
        if (call.name == member) {
            return number;
        }
    }
    return 0;
}

inline std::size_t count_of_calls(const automation::recorder_host& host, std::string_view member) {
    std::size_t count = 0;
    for (const automation::recorded_call& call : host.calls()) {
        count += call.name == member ? 1 : 0;
    }
    return count;
}

/// The error that a routine ends with when the first call of a member answers this error; host
/// holds the calls afterwards.
inline int run_with_fault(automation::recorder_host& host, model_routine routine,
                          const program& kavetta, std::string_view member, int error) {
    automation::recorder_host sound;
    run_recorded(sound, routine, kavetta);
    host.fail_call(first_call(sound, member), error);
    return run_recorded(host, routine, kavetta);
}

/// What was put last into a switch of the package.
inline bool last_put(const automation::recorder_host& host, std::string_view member) {
    bool state = false;
    for (const automation::recorded_call& call : host.calls()) {
        if (call.kind == automation::call_kind::put && call.name == member) {
            state = std::get<bool>(call.arguments.at(0));
        }
    }
    return state;
}

}  // namespace kvt
