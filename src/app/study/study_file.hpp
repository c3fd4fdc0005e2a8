// study_file: the file that the rows of a study go to, in such a way that a study that was killed
// goes on where it stood.
#pragma once

#include "app/study/study.hpp"
#include "app/study/study_text.hpp"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

/// Beside a file that is not whole yet stands one with this ending: which study it is of, and how
/// far that is. A study's file without it is finished.
inline constexpr const char* UNFINISHED_ENDING = ".unfinished";

/// Where a study is written, and which part of it.
struct study_place {
    std::filesystem::path path;
    study_format format = study_format::csv;
    work_range part;
};

/// How far the file at a place is: the first design that it lacks (the end of the part when it is
/// finished); nothing without a file. Throws study_problem when it is the file of another study,
/// run_time_error when it can't be read.
std::optional<std::uint64_t> first_missing(const study& designs, const study_place& place);

/// A table that grows by each row.
class growing_study_file {
  public:
    /// Begins the file anew, or goes on behind the last whole row of one that first_missing has
    /// found; a row that was cut off goes. Throws run_time_error when it can't be written.
    growing_study_file(const study& designs, study_place place, bool goes_on);

    /// Throws run_time_error when the row can't be written.
    void add(const study_row& row);
    /// The study is whole.
    void finish();

  private:
    const study& designs_;
    study_place place_;
    std::ofstream file_;
};

/// Writes a table of some rows as a whole, such as a front that changes. `next`: the first design
/// that was not looked at; the end of the part when the study is whole.
void write_study_rows(const study& designs, const study_place& place,
                      const std::vector<study_row>& rows, std::uint64_t next);

/// The rows of a file that first_missing has found.
std::vector<study_row> rows_of_file(const study& designs, const study_place& place);

}  // namespace kvt
