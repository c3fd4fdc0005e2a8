// exact_record: the exact figures of the program's design, and what they were worked out from.
#pragma once

#include "app/stages/stage_entries.hpp"
#include "exact/exact_results.hpp"
#include "views/exact/exact_table.hpp"

#include <memory>
#include <string>
#include <vector>

namespace kvt {

struct batch_result;
struct program;

struct exact_record {
    /// Never empty. Copies of the program share it: it is as large as the records it was taken
    /// from.
    std::shared_ptr<const exact_source> source = std::make_shared<const exact_source>();
    exact_results results;
    /// Counts the designs: results that were begun for an earlier one come too late.
    int revision = 0;
    /// The results that `source` holds.
    stage_entries made_from;
    /// A row of the table that the user wants to see; empty after it was shown.
    std::string asked_row;
};

/// The whole results of the open project, as they stand in the records.
exact_source exact_source_of(const program& kavetta);
/// Those of a run alone: the records can hold ports and performance of the design before.
exact_source exact_source_of(const program& kavetta, const batch_result& run);

/// Takes the records over when other results stand in them than the last time, and works out what
/// takes no time, rotors and performance; gaps and port timing wait. True when there were others.
bool update_exact_record(program& kavetta);

/// The table in the present language and units.
std::vector<exact_row> present_exact_rows(const program& kavetta);
exact_manner present_manner(const program& kavetta);

}  // namespace kvt
