#include "kvt/printed_status.hpp"

#include "base/run_time_error.hpp"
#include "kvt/exit_status.hpp"

#include <ostream>

namespace kvt {

int status_after_printing(int status, std::ostream& out, std::ostream& err, std::int16_t language) {
    if (out.flush()) {
        return status;
    }
    err << "standard output: "
        << run_time_error_line(run_time_error(failure::path_file_access), language) << '\n';
    return status == EXIT_OK ? EXIT_REFUSED : status;
}

}  // namespace kvt
