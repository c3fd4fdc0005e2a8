// system_file: what the system does with files and folders, under the same names on every system.
// What fails answers as its POSIX namesake does and leaves the reason in errno.
#pragma once

#include "base/descriptor.hpp"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace kvt {

enum class file_access { reading, writing, both };
/// What becomes of a file before it is open: nothing, it is emptied, created where there is none,
/// or refused where there is one.
enum class file_creation { none, emptied, where_missing, always_new };

struct opening {
    file_access access = file_access::reading;
    file_creation creation = file_creation::none;
    bool follows_links = true;
    bool waits_for_devices = true;
    /// Of a created file, as in POSIX, less what the user's mask takes away.
    int mode = 0;
};

/// An open file, bytes as they are; closed when it can't be. Started programs don't have it, and it
/// may be renamed and removed while it is open.
descriptor open_file(const std::filesystem::path& path, const opening& how);

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
