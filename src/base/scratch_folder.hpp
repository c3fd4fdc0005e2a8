// scratch_folder: a folder for files that are read once and thrown away.
#pragma once

#include <filesystem>

namespace kvt {

/// An empty folder of its own among the temporary files of the system, where no other user looks;
/// it goes with all that it holds. Throws path_file_access, with the system's reason, when there
/// can't be one.
class scratch_folder {
  public:
    scratch_folder();
    ~scratch_folder();
    scratch_folder(const scratch_folder&) = delete;
    scratch_folder& operator=(const scratch_folder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace kvt
