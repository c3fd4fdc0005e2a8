// Locks between running programs, and the file that goes with the lock.
#include "base/file_lock.hpp"

#include "support/temporary_folder.hpp"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace kvt {

namespace {

namespace fs = std::filesystem;

/// A program that takes the lock and holds it until it is killed.
class other_program {
  public:
    explicit other_program(const fs::path& lock) {
        int ready[2] = {};
        EXPECT_EQ(pipe(ready), 0);
        child_ = fork();
        if (child_ == 0) {
            const auto held = file_lock::take(lock);
            const char told = held ? 'y' : 'n';
            static_cast<void>(!::write(ready[1], &told, 1));
            pause();
            _exit(0);
        }
        char told = 0;
        EXPECT_EQ(read(ready[0], &told, 1), 1);
        EXPECT_EQ(told, 'y');
        close(ready[0]);
        close(ready[1]);
    }
    ~other_program() { kill_it(); }
    other_program(const other_program&) = delete;
    other_program& operator=(const other_program&) = delete;

    void kill_it() {
        if (child_ > 0) {
            kill(child_, SIGKILL);
            waitpid(child_, nullptr, 0);
            child_ = 0;
        }
    }

  private:
    pid_t child_ = 0;
};

TEST(file_lock, is_held_by_one_and_free_again_when_it_goes_with_its_file) {
    const temporary_folder folder;
    {
        const auto first = file_lock::take(folder / "a.lock");
        ASSERT_TRUE(first);
        EXPECT_FALSE(file_lock::take(folder / "a.lock"));
        EXPECT_TRUE(fs::exists(folder / "a.lock"));
    }
    EXPECT_FALSE(fs::exists(folder / "a.lock"));
    EXPECT_TRUE(file_lock::take(folder / "a.lock"));
}

TEST(file_lock, of_another_program_holds_until_that_is_killed) {
    const temporary_folder folder;
    other_program other(folder / "a.lock");
    EXPECT_FALSE(file_lock::take(folder / "a.lock"));
    other.kill_it();
    EXPECT_TRUE(fs::exists(folder / "a.lock")) << "a killed program leaves the file";
    EXPECT_TRUE(file_lock::take(folder / "a.lock"));
}

TEST(file_lock, moves_with_its_file_to_its_new_owner) {
    const temporary_folder folder;
    std::optional<file_lock> owner;
    {
        auto first = file_lock::take(folder / "a.lock");
        owner = std::move(first);
    }
    EXPECT_TRUE(fs::exists(folder / "a.lock"));
    EXPECT_FALSE(file_lock::take(folder / "a.lock"));
}

TEST(file_lock, is_not_taken_where_no_file_can_be_created) {
    const temporary_folder folder;
    EXPECT_FALSE(file_lock::take(folder / "no/a.lock"));
    EXPECT_FALSE(file_lock::take(folder.path()));
}

TEST(file_lock, on_a_file_that_lost_its_name_does_not_hold_the_name) {
    const temporary_folder folder;
    const auto lock = file_lock::take(folder / "a.lock");
    fs::remove(folder / "a.lock");
    EXPECT_TRUE(file_lock::take(folder / "a.lock"));
}

TEST(is_at, is_false_once_another_file_has_the_name) {
    const temporary_folder folder;
    const descriptor file(::open((folder / "a").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    EXPECT_TRUE(is_at(file, folder / "a"));
    fs::rename(folder / "a", folder / "b");
    EXPECT_FALSE(is_at(file, folder / "a"));
    const descriptor other(::open((folder / "a").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    EXPECT_FALSE(is_at(file, folder / "a"));
}

}  // namespace

}  // namespace kvt
