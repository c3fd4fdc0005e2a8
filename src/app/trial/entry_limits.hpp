// entry_limits: how far an entry can go, the others as they stand, until the design is refused.
#pragma once

#include "core/entries.hpp"

#include <atomic>
#include <optional>
#include <string>

namespace kvt {

enum class calc_stage;
struct program;

/// One end of an accepted interval.
struct entry_limit {
    double accepted = 0.0;  ///< the last number that is accepted
    double refused = 0.0;   ///< the first one found beyond it that is not
    std::string message;    ///< the first one that is told there; empty when none is
    /// The accepted end as it is shown, with a point: rounded into the interval, and tried.
    std::string shown;
};

/// The accepted interval round a number. An end is missing where every number is accepted: down to
/// 0, which itself may be refused, and up to a thousand times the number; angles end at 360 degrees
/// on either side.
struct entry_limits {
    double inside = 0.0;  ///< the present number, or an accepted one near it
    bool is_present_accepted = false;
    std::optional<entry_limit> lowest, highest;

    /// The end that is next to a present number that is refused; nullptr when it is accepted.
    const entry_limit* nearest() const;
    bool is_above_present = false;  ///< of an interval that does not hold the present number
};

/// The first stage that reads an entry. Nothing for one that no stage reads, and for one that is no
/// box.
std::optional<calc_stage> reading_stage(const entry_field& entry);

/// The interval in which the design is accepted up to a stage, on copies of the program. The end is
/// found by steps that double, from 1/64 of the present number, then by halves, to better than 1e-7
/// of it (of a degree for an angle next to 0); a whole number is counted up and down. A present
/// number that is refused gives the interval that begins next to it, within 64 steps of 1/64 of it
/// on either side. Nothing for an entry that these stages don't read, where no number is accepted,
/// and as soon as it is given up.
std::optional<entry_limits> find_limits(const program& kavetta, const entry_field& entry,
                                        calc_stage last,
                                        const std::atomic<bool>* is_given_up = nullptr);

}  // namespace kvt
