// Tests of the folder for files that are thrown away.
#include "base/scratch_folder.hpp"

#include "base/path_text.hpp"
#include "base/whole_file.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"

#include <cstdlib>
#include <gtest/gtest.h>

namespace kvt {
namespace {

/// The folder of temporary files is another one while it lives.
class temporary_files_in {
  public:
    explicit temporary_files_in(const std::string& folder) {
        const char* before = std::getenv("TMPDIR");
        before_ = before == nullptr ? "" : before;
        setenv("TMPDIR", folder.c_str(), 1);
    }
    ~temporary_files_in() {
        if (before_.empty()) {
            unsetenv("TMPDIR");
        } else {
            setenv("TMPDIR", before_.c_str(), 1);
        }
    }
    temporary_files_in(const temporary_files_in&) = delete;
    temporary_files_in& operator=(const temporary_files_in&) = delete;

  private:
    std::string before_;
};

TEST(scratch_folder, is_empty_one_of_its_own_and_goes_with_what_it_holds) {
    const temporary_folder place;
    const temporary_files_in there(utf8_of_path(place.path()));
    {
        const scratch_folder one;
        const scratch_folder other;
        EXPECT_NE(one.path(), other.path());
        EXPECT_TRUE(std::filesystem::is_empty(one.path()));
        write_file(one.path() / "file", "text");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(place.path()),
                                std::filesystem::directory_iterator()),
                  2);
    }
    EXPECT_TRUE(std::filesystem::is_empty(place.path()));
}

TEST(scratch_folder, nobody_else_may_look_into) {
    const scratch_folder folder;
    EXPECT_EQ(std::filesystem::status(folder.path()).permissions(),
              std::filesystem::perms::owner_all);
}

TEST(scratch_folder, fails_where_there_are_no_temporary_files) {
    const temporary_folder place;
    const temporary_files_in there(place.file("none"));
    EXPECT_FAILURE(scratch_folder(), failure::path_file_access);
}

}  // namespace
}  // namespace kvt
