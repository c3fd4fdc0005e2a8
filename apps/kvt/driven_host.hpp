// driven_host: whose calls a command of kvt makes, those of a program of this machine or of a
// recorder, and the log of the latter.
#pragma once

#include "automation/host.hpp"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>

namespace CLI {
class App;
}

namespace kvt {

/// Words of --host.
inline constexpr const char* PROGRAMS_OF_THIS_MACHINE = "com";
inline constexpr const char* RECORDER = "recorder";
inline constexpr const char* BUILT_IN_MODELLER = "builtin";

struct host_request {
    std::string host = PROGRAMS_OF_THIS_MACHINE;  ///< whose calls are made
    std::string log_file;                         ///< for the recorder's calls; empty: none
    bool full_log = false;                        ///< with every number and call
};

/// Adds --host, --log and --full-log. driven is what is driven: "package".
void add_host_options(CLI::App& command, host_request& request, const std::string& driven);
/// The same with a further host: the built-in modeller, which is the default where no program of
/// this machine can be driven.
void add_model_host_options(CLI::App& command, host_request& request);

/// What is wrong with options that are right by themselves, or nothing: only the recorder has a
/// log.
std::string host_options_problem(const host_request& request);

/// Does the work with the host that was asked for, and writes the log of a recorder. Where no
/// program can be driven every create answers 429. Answers the exit status: 0 when the work answers
/// true and the log could be written, else 1; then `err` says why there is no log.
int drive(const host_request& request, const std::function<bool(automation::host&)>& work,
          std::int16_t language, std::ostream& err);

}  // namespace kvt
