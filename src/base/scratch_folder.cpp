#include "base/scratch_folder.hpp"

#include "base/run_time_error.hpp"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace kvt {

namespace fs = std::filesystem;

scratch_folder::scratch_folder() {
    std::error_code error;
    std::string name = (fs::temp_directory_path(error) / "kvt-XXXXXX").string();
    if (error || ::mkdtemp(name.data()) == nullptr) {
        throw run_time_error(failure::path_file_access, name,
                             {file_fault::reason::system, error ? error.value() : errno});
    }
    path_ = name;
}

scratch_folder::~scratch_folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace kvt
