#include "base/system_file.hpp"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>

namespace kvt {

namespace fs = std::filesystem;

namespace {

int flag_of(file_access access) {
    switch (access) {
        case file_access::reading:
            return O_RDONLY;
        case file_access::writing:
            return O_WRONLY;
        case file_access::both:
            break;
    }
    return O_RDWR;
}

int flag_of(file_creation creation) {
    switch (creation) {
        case file_creation::none:
            return 0;
        case file_creation::emptied:
            return O_TRUNC;
        case file_creation::where_missing:
            return O_CREAT;
        case file_creation::always_new:
            break;
    }
    return O_CREAT | O_EXCL;
}

}  // namespace

descriptor open_file(const fs::path& path, const opening& how) {
    const int flags = flag_of(how.access) | flag_of(how.creation) |
                      (how.follows_links ? 0 : O_NOFOLLOW) |
                      (how.waits_for_devices ? 0 : O_NONBLOCK) | O_CLOEXEC;
    return descriptor(::open(path.c_str(), flags, static_cast<mode_t>(how.mode)));
}

std::ptrdiff_t read_bytes(const descriptor& file, char* bytes, std::size_t count) {
    return ::read(file.number(), bytes, count);
}

std::ptrdiff_t write_bytes(const descriptor& file, std::string_view bytes) {
    return ::write(file.number(), bytes.data(), bytes.size());
}

bool reached_the_disk(const descriptor& file) {
    return ::fsync(file.number()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

void flush_folder(const fs::path& folder) {
    const fs::path named = folder.empty() ? "." : folder;
    const descriptor open_folder(::open(named.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (open_folder.is_open()) {
        static_cast<void>(reached_the_disk(open_folder));
    }
}

file_kind kind_of(const descriptor& file) {
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0) {
        return file_kind::unknown;
    }
    if (S_ISDIR(status.st_mode)) {
        return file_kind::folder;
    }
    return S_ISREG(status.st_mode) ? file_kind::plain : file_kind::other;
}

void set_permissions(const descriptor& file, fs::perms permissions) {
    static_cast<void>(::fchmod(file.number(), static_cast<mode_t>(permissions)));
}

bool rename_file(const fs::path& from, const fs::path& to) {
    return ::rename(from.c_str(), to.c_str()) == 0;
}

bool may_add_files(const fs::path& folder) {
    return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool may_be_executed(const fs::path& file) {
    return ::access(file.c_str(), X_OK) == 0;
}

bool make_private_folder(std::string& name) {
    return ::mkdtemp(name.data()) != nullptr;
}

}  // namespace kvt
