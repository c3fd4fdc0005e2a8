#include "base/standard_streams.hpp"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace kvt {

void guard_standard_streams() {
    SetConsoleOutputCP(CP_UTF8);
    // Output and error; a closed one refuses, and printing to it fails.
    for (int stream = 1; stream <= 2; ++stream) {
        static_cast<void>(_setmode(stream, _O_BINARY));
    }
}

bool is_error_a_terminal() {
    return _isatty(2) != 0;
}

}  // namespace kvt
