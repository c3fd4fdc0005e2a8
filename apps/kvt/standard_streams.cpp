#include "kvt/standard_streams.hpp"

#include "base/run_time_error.hpp"
#include "kvt/batch_run.hpp"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <ostream>
#include <unistd.h>

namespace kvt {

void guard_standard_streams() {
    std::signal(SIGPIPE, SIG_IGN);
    // open takes the lowest free number. For reading alone: writing to it fails.
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) == -1 && errno == EBADF) {
            static_cast<void>(::open("/dev/null", O_RDONLY));
        }
    }
}

int status_after_printing(int status, std::ostream& out, std::ostream& err, std::int16_t language) {
    if (out.flush()) {
        return status;
    }
    err << "standard output: "
        << run_time_error_line(run_time_error(failure::path_file_access), language) << '\n';
    return status == EXIT_OK ? EXIT_REFUSED : status;
}

}  // namespace kvt
