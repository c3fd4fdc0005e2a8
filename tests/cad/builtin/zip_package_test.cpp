#include "cad/builtin/zip_package.hpp"

#include <cstdint>
#include <gtest/gtest.h>
#include <zip.h>

namespace kvt::builtin {
namespace {

/// The files of an archive, read back by the library.
std::vector<packed_file> unpacked(const std::string& bytes) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
    zip_t* archive = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error);
    EXPECT_NE(archive, nullptr) << zip_error_strerror(&error);
    std::vector<packed_file> files;
    for (zip_int64_t i = 0; archive != nullptr && i < zip_get_num_entries(archive, 0); ++i) {
        const auto place = static_cast<zip_uint64_t>(i);
        zip_stat_t size;
        EXPECT_EQ(zip_stat_index(archive, place, 0, &size), 0);
        files.push_back({size.name, std::string(size.size, ' ')});
        zip_file_t* file = zip_fopen_index(archive, place, 0);
        EXPECT_EQ(zip_fread(file, files.back().bytes.data(), size.size),
                  static_cast<zip_int64_t>(size.size));
        zip_fclose(file);
    }
    zip_discard(archive);
    return files;
}

TEST(zip_package, gives_back_what_was_packed) {
    const std::string long_text(100000, 'x');
    const std::string packed = zip_package({{"a.txt", long_text}, {"b/c.txt", ""}, {"d", "end"}});
    EXPECT_LT(packed.size(), 1000u) << "compressed";
    const std::vector<packed_file> files = unpacked(packed);
    ASSERT_EQ(files.size(), 3u);
    EXPECT_EQ(files[0].name, "a.txt");
    EXPECT_EQ(files[0].bytes, long_text);
    EXPECT_EQ(files[1].name, "b/c.txt");
    EXPECT_EQ(files[1].bytes, "");
    EXPECT_EQ(files[2].bytes, "end");
}

// Byte 10 of a file's head is its date: that of packing would change from run to run.
TEST(zip_package, has_no_date_of_its_own) {
    const std::string packed = zip_package({{"a", "b"}});
    ASSERT_GT(packed.size(), 14u);
    const auto byte = [&packed](std::size_t at) { return static_cast<unsigned char>(packed[at]); };
    const unsigned date = byte(12) + 256u * byte(13);
    EXPECT_EQ(1980u + (date >> 9), 1980u);
}

}  // namespace
}  // namespace kvt::builtin
