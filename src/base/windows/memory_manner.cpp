#include "base/memory_manner.hpp"

namespace kvt {

/// The system's heap does so by itself.
void take_large_blocks_from_system() {}

}  // namespace kvt
