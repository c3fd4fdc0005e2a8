// Tests of the times of files.
#include "base/file_time.hpp"

#include "base/whole_file.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using std::chrono::system_clock;

TEST(written_at, is_the_time_of_the_clock) {
    const temporary_folder folder;
    const auto before = system_clock::now() - std::chrono::seconds(1);  // ticks of the file system
    write_file(folder / "Zahnräder.txt", "text");
    EXPECT_GE(written_at(folder / "Zahnräder.txt"), before);
    EXPECT_LE(written_at(folder / "Zahnräder.txt"), system_clock::now() + std::chrono::seconds(1));
}

TEST(written_at, tells_files_of_one_second_apart) {
    const temporary_folder folder;
    write_file(folder / "first", "text");
    const auto first = written_at(folder / "first");
    auto second = first;
    while (second == first) {
        write_file(folder / "second", "text");
        second = written_at(folder / "second");
    }
    EXPECT_LT(second - first, std::chrono::milliseconds(500));
}

TEST(written_at, of_nothing_is_the_epoch) {
    const temporary_folder folder;
    EXPECT_EQ(written_at(folder / "none"), system_clock::time_point());
}

}  // namespace
}  // namespace kvt
