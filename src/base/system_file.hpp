// system_file: what the system does with files and folders, under the same names on every system.
// What fails answers as its POSIX namesake does and leaves the reason in errno.
#pragma once

#include "base/descriptor.hpp"

#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <string_view>

namespace kvt {

#ifdef _WIN32
// What that system does of itself, or has no use for.
inline constexpr int O_CLOEXEC = 0;
inline constexpr int O_NONBLOCK = 0;
inline constexpr int O_NOFOLLOW = 0;
#endif

/// A file opened with the flags of open, bytes as they are; closed when it can't be. It may be
/// renamed and removed while it is open. mode is that of a created one, less what the user's mask
/// takes away.
descriptor open_file(const std::filesystem::path& path, int flags, int mode = 0);

/// The number of bytes that were read or written, at most those asked for; -1: failed.
std::ptrdiff_t read_bytes(const descriptor& file, char* bytes, std::size_t count);
std::ptrdiff_t write_bytes(const descriptor& file, std::string_view bytes);

/// Waits until the bytes of a file are on the disk. Devices and some file systems have nothing to
/// flush, which is no failure.
bool reached_the_disk(const descriptor& file);
/// Waits until the names of a folder are there too. A folder that can't be opened for reading is
/// left to the system.
void flush_folder(const std::filesystem::path& folder);

enum class file_kind { unknown, plain, folder, other };
file_kind kind_of(const descriptor& file);
/// Leaves them as they are where the system keeps none with the file.
void set_permissions(const descriptor& file, std::filesystem::perms permissions);

/// A file of the new name is replaced, at no moment is there none.
bool rename_file(const std::filesystem::path& from, const std::filesystem::path& to);
bool may_add_files(const std::filesystem::path& folder);
bool may_be_executed(const std::filesystem::path& file);
/// A new folder for this user alone; the X at the end of the name are replaced by what makes it
/// one of its own.
bool make_private_folder(std::string& name);

}  // namespace kvt
