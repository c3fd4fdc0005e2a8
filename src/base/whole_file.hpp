// whole_file: files that are read as a whole, and replaced as a whole or not at all.
#pragma once

#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>

namespace kvt {

inline constexpr std::size_t ANY_SIZE = std::numeric_limits<std::size_t>::max();
/// No file that the program reads line by line comes near to it: 1 MB.
inline constexpr std::size_t LARGEST_TEXT = std::size_t{1} << 20;

/// All bytes of a plain file. Throws path_not_found, file_not_found (also for an empty path) or
/// path_file_access with the reason: what the system said, a device or a pipe, or more bytes than
/// `largest`, where it stops reading.
std::string read_file(const std::filesystem::path& path, std::size_t largest = ANY_SIZE);

/// Whether new bytes are on the disk before write_file returns, or when the system sees fit.
enum class disk_write { flushed, left_to_the_system };

/// Writes bytes to a temporary name beside the path and renames it over the path, so that a crash
/// leaves either the old file or the new one; flushed, a failure of the power does so too. Throws
/// path_not_found or path_file_access with the system's reason; then the old file is untouched. A
/// link stays a link and its target is replaced; the old file's permissions stay; a device or pipe
/// is written to. Temporary files that killed programs left in the folder are removed; those that
/// another program is writing are locked, and stay.
void write_file(const std::filesystem::path& path, std::string_view bytes,
                disk_write kind = disk_write::flushed);

/// True for a file that may be written in a folder that takes no further file: write_file can't
/// replace it, write_in_place can overwrite it.
bool is_only_written_in_place(const std::filesystem::path& path);

/// Overwrites a file where it stands. A failure meanwhile leaves it incomplete. Throws
/// path_file_access with the system's reason.
void write_in_place(const std::filesystem::path& path, std::string_view bytes);

/// Writes bytes from the start of a file, which is created when it is missing. A longer file keeps
/// what stands behind them. Throws path_not_found without its folder, path_file_access with the
/// system's reason.
void write_at_start(const std::filesystem::path& path, std::string_view bytes);

}  // namespace kvt
