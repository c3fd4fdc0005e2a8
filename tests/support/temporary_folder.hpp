// temporary_folder: an empty folder of a test's own that goes with the test.
#pragma once

#include "base/path_text.hpp"
#include "base/system_file.hpp"

#include <filesystem>
#include <stdexcept>
#include <string>

namespace kvt {

class temporary_folder {
  public:
    temporary_folder() {
        std::string name = utf8_of_path(std::filesystem::temp_directory_path() / "kvt_test_XXXXXX");
        if (!make_private_folder(name)) {
            throw std::runtime_error("no temporary folder " + name);
        }
        path_ = path_of_utf8(name);
    }
    ~temporary_folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    temporary_folder(const temporary_folder&) = delete;
    temporary_folder& operator=(const temporary_folder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const {
        return path_ / path_of_utf8(name);
    }
    /// The path of a file in the folder, as the text that commands take.
    std::string file(const std::string& name) const { return utf8_of_path(*this / name); }

  private:
    std::filesystem::path path_;
};

}  // namespace kvt
