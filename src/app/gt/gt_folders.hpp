// gt_folders: where a model is made and where it stays.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kvt {

struct gt_folders {
    std::filesystem::path gt_temp_dir;  ///< KVT_GT_temp: emptied before and after
    std::filesystem::path results;      ///< GT_files: models and chamber profiles stay
};

/// Both below the program's folder.
gt_folders gt_folders_of(const std::filesystem::path& program_folder);

/// Makes both folders; nobody else may read gt_temp_dir. Throws path_not_found or path_file_access.
void make_gt_folders(const gt_folders& folders);
/// The same for a new run: gt_temp_dir is emptied.
void prepare_gt_folders(const gt_folders& folders);

/// Removes the plain files that stand directly in a folder; what is in folders below stays. Throws
/// path_file_access for one that can't be removed.
void empty_folder(const std::filesystem::path& folder);

/// The names of the files of a folder. Throws path_not_found.
std::vector<std::string> file_names(const std::filesystem::path& folder);

/// The path of a file with a project's name in it. Throws invalid_property_value for a name that
/// would lead to another folder.
std::filesystem::path named_file(const std::filesystem::path& folder, const std::string& name);

/// Copies a file over another. Throws path_file_access.
void copy_over(const std::filesystem::path& from, const std::filesystem::path& to);
/// Removes a file. Throws path_file_access.
void remove_file(const std::filesystem::path& file);

}  // namespace kvt
