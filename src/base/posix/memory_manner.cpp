#include "base/memory_manner.hpp"

#include <malloc.h>

namespace kvt {

void take_large_blocks_from_system() {
    constexpr int LARGE = 128 * 1024;
    // Once it is set, the library does not raise it any more.
    mallopt(M_MMAP_THRESHOLD, LARGE);
}

}  // namespace kvt
