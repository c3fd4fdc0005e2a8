// file_time: when a file was written, as finely as the system knows it.
#pragma once

#include <chrono>
#include <filesystem>

namespace kvt {

/// The epoch for what is not there.
std::chrono::system_clock::time_point written_at(const std::filesystem::path& file);

}  // namespace kvt
