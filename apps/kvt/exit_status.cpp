#include "kvt/exit_status.hpp"

namespace kvt {

int exit_status(batch_end end) {
    if (end == batch_end::read_error) {
        return EXIT_UNREADABLE;
    }
    return end == batch_end::ok ? EXIT_OK : EXIT_REFUSED;
}

int exit_status(const batch_result& result) {
    const bool refused = result.ports_refused || result.performance_refused;
    return refused ? EXIT_REFUSED : exit_status(result.end);
}

}  // namespace kvt
