// What a project file holds, taken from the program and put back into it.
#pragma once

#include "base/whole_file.hpp"
#include "core/project_file.hpp"

#include <optional>
#include <string_view>

namespace kvt {

struct program;

/// The record that Save writes: the boxes as typed and the items of state. path is line 1.
project_record project_record_of(const program& kavetta, std::string_view path);

/// Puts the boxes and items of a record into the program, in the order of Open: the rotor boxes,
/// the units, the clearances, eccentricity and inner root as numbers, then ports and performance.
/// Throws run_time_error when line 11 or 12 is no number or a check line holds something else than
/// 0 or 1; what was assigned before stays.
void assign_project_record(program& kavetta, const project_record& record);

/// A box of Form1 with a text at which Open would fail, and the label beside it.
struct unopenable_entry {
    std::string_view box;
    std::string_view label;
};

/// The first such entry: eccentricity or inner root without a number, or a required capacity that
/// the unit list can't convert.
std::optional<unopenable_entry> find_unopenable_entry(const program& kavetta);

/// Puts the boxes of entries that nobody saved into the program as they were typed: nothing is
/// converted, rounded or refused. An eccentricity or inner root without a number counts as 0, an
/// unknown capacity unit leaves list and caption alone.
void assign_unsaved_entries(program& kavetta, const project_record& record);

/// Writes the entries to a file as Save does, without any other effect. Throws run_time_error.
void write_entries(const program& kavetta, std::string_view path,
                   disk_write kind = disk_write::flushed);

}  // namespace kvt
