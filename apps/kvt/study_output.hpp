// study_output: what kvt study and kvt search write beside their rows, and where.
#pragma once

#include "app/stages/batch_run.hpp"
#include "app/study/study.hpp"
#include "app/study/study_text.hpp"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace kvt {

/// Where the rows go.
struct study_out {
    std::string out;  ///< file, or the folder of it and of saved projects; empty: standard output
    bool json_lines = false;
    std::size_t saved_count = 0;  ///< best designs to be saved as projects

    study_format format() const;
    /// The table; with projects to be saved it is study.csv or study.jsonl of the folder.
    std::filesystem::path table() const;
    /// Makes the folder of saved projects, where there are any. Throws run_time_error.
    void make_folder() const;
};

/// Opens the project of a study and runs something on it. Answers its exit status, that of a
/// project that can't be opened, usage for a study that can't be, and refused when a file can't be
/// written.
int run_on_project(const design_source& source, const study_out& where, std::ostream& err,
                   const std::function<int(const program& base)>& run);

/// best_1.KVT, best_2.KVT ... in the folder, from the best of the first aim on; their paths go to
/// `out`. Throws run_time_error.
void save_projects(const study& designs, const std::vector<study_row>& best, const study_out& where,
                   std::ostream& out);

}  // namespace kvt
