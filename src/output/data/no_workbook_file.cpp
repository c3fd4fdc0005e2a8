// In place of workbook_file.cpp where the program is built without libxlsxwriter.
#include "base/run_time_error.hpp"
#include "output/data/workbook_file.hpp"

namespace kvt {

bool has_workbook_files() {
    return false;
}

std::string workbook_bytes(std::span<const workbook_sheet> /*plan*/,
                           const std::function<void(int sheet_count)>& /*sheet_done*/) {
    throw run_time_error(failure::path_file_access, "built without libxlsxwriter");
}

}  // namespace kvt
