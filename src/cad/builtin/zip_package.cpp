#include "cad/builtin/zip_package.hpp"

#include "base/run_time_error.hpp"

#include <ctime>
#include <memory>
#include <zip.h>

namespace kvt::builtin {

namespace {

/// 1980-01-01 12:00 in Greenwich, about the first day that the format can tell.
constexpr std::time_t FIRST_DAY = 315576000;

[[noreturn]] void fail(const std::string& what) {
    throw run_time_error(failure::out_of_memory, "zip: " + what);
}

struct source_closer {
    void operator()(zip_source_t* one) const { zip_source_free(one); }
};
/// A place in memory; the archive has a share of it, so that its bytes outlive the archive.
using memory_source = std::unique_ptr<zip_source_t, source_closer>;

memory_source empty_memory() {
    zip_error_t error;
    zip_error_init(&error);
    memory_source memory(zip_source_buffer_create(nullptr, 0, 0, &error));
    if (memory == nullptr) {
        fail(zip_error_strerror(&error));
    }
    return memory;
}

struct archive_closer {
    void operator()(zip_t* one) const { zip_discard(one); }
};
using archive = std::unique_ptr<zip_t, archive_closer>;

archive archive_in(zip_source_t* memory) {
    zip_error_t error;
    zip_error_init(&error);
    archive opened(zip_open_from_source(memory, ZIP_TRUNCATE, &error));
    if (opened == nullptr) {
        fail(zip_error_strerror(&error));
    }
    zip_source_keep(memory);
    return opened;
}

/// The bytes must stay until the archive is closed.
void add(zip_t* to, const packed_file& one) {
    zip_source_t* bytes = zip_source_buffer(to, one.bytes.data(), one.bytes.size(), 0);
    const zip_int64_t place = zip_file_add(to, one.name.c_str(), bytes, ZIP_FL_ENC_UTF_8);
    if (place < 0) {
        zip_source_free(bytes);
        fail(zip_strerror(to));
    }
    zip_file_set_mtime(to, static_cast<zip_uint64_t>(place), FIRST_DAY, 0);
}

std::string bytes_of(zip_source_t* memory) {
    zip_stat_t size;
    if (zip_source_open(memory) != 0 || zip_source_stat(memory, &size) != 0) {
        fail(zip_error_strerror(zip_source_error(memory)));
    }
    std::string bytes(size.size, '\0');
    const zip_int64_t got = zip_source_read(memory, bytes.data(), bytes.size());
    zip_source_close(memory);
    if (got != static_cast<zip_int64_t>(bytes.size())) {
        fail("incomplete");
    }
    return bytes;
}

}  // namespace

std::string zip_package(const std::vector<packed_file>& files) {
    const memory_source memory = empty_memory();
    archive made = archive_in(memory.get());
    for (const packed_file& one : files) {
        add(made.get(), one);
    }
    if (zip_close(made.get()) != 0) {
        fail(zip_strerror(made.get()));
    }
    static_cast<void>(made.release());  // closed, so gone
    return bytes_of(memory.get());
}

}  // namespace kvt::builtin
