// Files by CreateFileW, so that they can be renamed and removed while they are open.
#include "base/system_file.hpp"

#include "base/path_text.hpp"

#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <random>
#include <sys/stat.h>
#include <system_error>
#include <windows.h>

namespace kvt {

namespace fs = std::filesystem;

namespace {

constexpr DWORD OTHERS_MAY_ALL = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// errno for what the system said last.
int last_error() {
    const std::error_condition condition =
        std::system_category().default_error_condition(static_cast<int>(GetLastError()));
    return condition.category() == std::generic_category() ? condition.value() : EIO;
}

bool noted(bool done) {
    if (!done) {
        errno = last_error();
    }
    return done;
}

DWORD flag_of(file_access access) {
    switch (access) {
        case file_access::reading:
            return GENERIC_READ;
        case file_access::writing:
            return GENERIC_WRITE;
        case file_access::both:
            break;
    }
    return GENERIC_READ | GENERIC_WRITE;
}

DWORD flag_of(file_creation creation) {
    switch (creation) {
        case file_creation::none:
            return OPEN_EXISTING;
        case file_creation::emptied:
            return TRUNCATE_EXISTING;
        case file_creation::where_missing:
            return OPEN_ALWAYS;
        case file_creation::always_new:
            break;
    }
    return CREATE_NEW;
}

/// ".kvt-XXXXXX" with six characters of their own in place of the X.
void replace_marks(std::string& name) {
    constexpr std::string_view CHARACTERS = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> any(0, CHARACTERS.size() - 1);
    for (std::size_t i = name.find_last_not_of('X') + 1; i < name.size(); ++i) {
        name[i] = CHARACTERS[any(random)];
    }
}

}  // namespace

descriptor open_file(const fs::path& path, const opening& how) {
    const HANDLE handle = CreateFileW(path.c_str(), flag_of(how.access), OTHERS_MAY_ALL, nullptr,
                                      flag_of(how.creation), FILE_ATTRIBUTE_NORMAL, nullptr);
    if (!noted(handle != INVALID_HANDLE_VALUE)) {
        return descriptor();
    }
    return descriptor(
        _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), O_BINARY | _O_NOINHERIT));
}

std::ptrdiff_t read_bytes(const descriptor& file, char* bytes, std::size_t count) {
    return ::read(file.number(), bytes, static_cast<unsigned>(count));
}

std::ptrdiff_t write_bytes(const descriptor& file, std::string_view bytes) {
    constexpr std::size_t AT_ONCE = std::size_t{1} << 24;
    const std::string_view part = bytes.substr(0, AT_ONCE);
    return ::write(file.number(), part.data(), static_cast<unsigned>(part.size()));
}

bool reached_the_disk(const descriptor& file) {
    return ::_commit(file.number()) == 0 || errno == EBADF;
}

void flush_folder(const fs::path& /*folder*/) {}

file_kind kind_of(const descriptor& file) {
    struct _stat64 status = {};
    if (::_fstat64(file.number(), &status) != 0) {
        return file_kind::unknown;
    }
    if ((status.st_mode & S_IFMT) == S_IFDIR) {
        return file_kind::folder;
    }
    return (status.st_mode & S_IFMT) == S_IFREG ? file_kind::plain : file_kind::other;
}

void set_permissions(const descriptor& /*file*/, fs::perms /*permissions*/) {}

bool rename_file(const fs::path& from, const fs::path& to) {
    return noted(MoveFileExW(from.c_str(), to.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0);
}

bool may_add_files(const fs::path& folder) {
    return ::_waccess(folder.c_str(), W_OK) == 0;
}

bool may_be_executed(const fs::path& file) {
    return ::_waccess(file.c_str(), R_OK) == 0;
}

bool make_private_folder(std::string& name) {
    // The folder for temporary files is the user's own on this system.
    replace_marks(name);
    std::error_code error;
    if (fs::create_directory(path_of_utf8(name), error)) {
        return true;
    }
    errno = error ? error.default_error_condition().value() : EEXIST;
    return false;
}

}  // namespace kvt
