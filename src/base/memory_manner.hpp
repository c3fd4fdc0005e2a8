// memory_manner: how a program gets its memory from the system.
#pragma once

namespace kvt {

/// At the start of the process, for one that calculates many designs: a large block always comes
/// fresh from the system, which zeroes its pages as they are touched. Otherwise the C library keeps
/// blocks that were given back and zeroes the whole of them, touched or not; zeroed_array lives
/// from the difference.
void take_large_blocks_from_system();

}  // namespace kvt
