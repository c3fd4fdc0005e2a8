// zip_package: several files packed into one, in memory.
#pragma once

#include <string>
#include <vector>

namespace kvt::builtin {

struct packed_file {
    std::string name;  ///< with "/" between folders
    std::string bytes;
};

/// A zip archive with the files in their order, compressed, without a date of its own: the same
/// files give the same bytes. Throws run_time_error out_of_memory when it can't be made.
std::string zip_package(const std::vector<packed_file>& files);

}  // namespace kvt::builtin
