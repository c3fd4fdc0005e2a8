#include "base/standard_streams.hpp"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
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

bool is_error_a_terminal() {
    return ::isatty(STDERR_FILENO) != 0;
}

}  // namespace kvt
