// study_files: what the Study window saves and opens, from the dialog to the status bar.
#pragma once

#include "app/study/study_document.hpp"

#include <optional>
#include <string>
#include <vector>

namespace kvt {

/// Asks for a study file, beside the project, and reads it. Nothing when the dialog was cancelled,
/// or when the file holds no study, which is told.
std::optional<study_document> open_study(const program& kavetta, user& person);
/// Asks where to, and writes it.
void save_study(const program& kavetta, user& person, const study_document& document);
/// The rows as comma-separated values, or as JSON lines by the ending of the name.
void save_study_table(const program& kavetta, user& person, const study& designs,
                      const std::vector<study_row>& rows);
/// Each row as a project: under the name that is asked for, "NAME 2", "NAME 3" .. as far as there
/// is no file of that name.
void save_study_projects(const program& kavetta, user& person, const study& designs,
                         const std::vector<study_row>& rows);

/// The open project with the texts of a design typed.
program with_typed_texts(const study& designs, const std::vector<std::string>& texts);

}  // namespace kvt
