#include "base/scratch_folder.hpp"

#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/system_file.hpp"

#include <cerrno>
#include <string>
#include <system_error>

namespace kvt {

namespace fs = std::filesystem;

scratch_folder::scratch_folder() {
    std::error_code error;
    std::string name = utf8_of_path(fs::temp_directory_path(error) / "kvt-XXXXXX");
    if (error || !make_private_folder(name)) {
        throw run_time_error(failure::path_file_access, name,
                             {file_fault::reason::system, error ? error.value() : errno});
    }
    path_ = path_of_utf8(name);
}

scratch_folder::~scratch_folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace kvt
