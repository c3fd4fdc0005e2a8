// Files that are read as a whole, and replaced as a whole or not at all.
#include "base/whole_file.hpp"

#include "base/file_lock.hpp"
#include "base/path_text.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"
#include "support/unprivileged.hpp"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace kvt {

namespace {

namespace fs = std::filesystem;
using lines = std::vector<std::string>;

std::vector<std::string> names_in(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        names.push_back(utf8_of_path(entry.path().filename()));
    }
    return names;
}

/// Whether a file of this name held new bytes when the system was told to flush something.
struct flush_watch {
    fs::path target;
    lines flushed;
};
flush_watch* watch = nullptr;

void note_flush(int file) {
    struct stat status = {};
    if (watch != nullptr && fstat(file, &status) == 0) {
        const std::string now = fs::exists(watch->target) ? read_file(watch->target) : "none";
        watch->flushed.push_back((S_ISDIR(status.st_mode) ? "folder, " : "file, ") + now);
    }
}

/// The reason with which an expression that must fail on a file does so.
template <typename action>
file_fault fault_of(const action& run) {
    try {
        run();
    } catch (const run_time_error& error) {
        EXPECT_EQ(error.kind(), failure::path_file_access);
        return error.fault();
    }
    ADD_FAILURE() << "did not fail";
    return {};
}

/// Writes a file in a process of its own, which the system kills in the middle of it.
void write_until_killed(const fs::path& path) {
    const pid_t child = fork();
    if (child == 0) {
        const rlimit few_bytes = {1000, 1000};
        setrlimit(RLIMIT_FSIZE, &few_bytes);
        const rlimit no_core = {0, 0};
        setrlimit(RLIMIT_CORE, &no_core);
        write_file(path, std::string(100000, 'x'));
        _exit(0);
    }
    int ended = 0;
    ASSERT_EQ(waitpid(child, &ended, 0), child);
    ASSERT_TRUE(WIFSIGNALED(ended));
    ASSERT_EQ(WTERMSIG(ended), SIGXFSZ);
}

TEST(read_file, gives_back_every_byte_that_write_file_wrote) {
    const temporary_folder folder;
    std::string bytes;
    for (int i = 0; i < 200000; ++i) {
        bytes += static_cast<char>(i % 251);
    }
    write_file(folder / "a.KVT", bytes);
    EXPECT_EQ(read_file(folder / "a.KVT"), bytes);
}

TEST(read_file, names_what_is_missing) {
    const temporary_folder folder;
    EXPECT_FAILURE(read_file(""), failure::file_not_found);
    EXPECT_FAILURE(read_file(folder / "no.KVT"), failure::file_not_found);
    EXPECT_FAILURE(read_file(folder / "no/a.KVT"), failure::path_not_found);
    EXPECT_FAILURE(read_file(folder.path()), failure::path_file_access);
}

TEST(write_file, replaces_an_old_file_and_leaves_nothing_beside_it) {
    const temporary_folder folder;
    write_file(folder / "a.KVT", "a longer old text");
    write_file(folder / "a.KVT", "new");
    EXPECT_EQ(read_file(folder / "a.KVT"), "new");
    EXPECT_EQ(names_in(folder.path()), lines{"a.KVT"});
}

TEST(write_file, keeps_the_permissions_of_the_old_file) {
    const temporary_folder folder;
    write_file(folder / "a.KVT", "old");
    const fs::perms only_owner = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(folder / "a.KVT", only_owner);
    write_file(folder / "a.KVT", "new");
    EXPECT_EQ(fs::status(folder / "a.KVT").permissions(), only_owner);
}

TEST(write_file, writes_through_a_link_and_keeps_it) {
    const temporary_folder folder;
    fs::create_directory(folder / "real");
    write_file(folder / "real/a.KVT", "old");
    fs::create_symlink(folder / "real/a.KVT", folder / "link.KVT");
    write_file(folder / "link.KVT", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link.KVT"));
    EXPECT_EQ(read_file(folder / "real/a.KVT"), "new");
}

TEST(write_file, writes_to_a_device_without_replacing_it) {
    write_file("/dev/null", "text");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(write_file, fails_without_a_folder_and_leaves_nothing) {
    const temporary_folder folder;
    EXPECT_FAILURE(write_file(folder / "no/a.KVT", "text"), failure::path_not_found);
    EXPECT_FAILURE(write_file("", "text"), failure::path_file_access);
    EXPECT_EQ(names_in(folder.path()), lines{});
}

TEST(write_file, fails_on_a_folder_and_leaves_it) {
    const temporary_folder folder;
    fs::create_directory(folder / "a.KVT");
    EXPECT_FAILURE(write_file(folder / "a.KVT", "text"), failure::path_file_access);
    EXPECT_EQ(names_in(folder.path()), lines{"a.KVT"});
    EXPECT_TRUE(fs::is_directory(folder / "a.KVT"));
}

TEST(write_file, fails_when_the_device_takes_no_more) {
    if (!fs::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    EXPECT_FAILURE(write_file("/dev/full", "text"), failure::path_file_access);
}

TEST(read_file, stops_at_the_largest_size_and_says_so) {
    const temporary_folder folder;
    write_file(folder / "a.KVT", std::string(LARGEST_TEXT, 'x'));
    EXPECT_EQ(read_file(folder / "a.KVT", LARGEST_TEXT).size(), LARGEST_TEXT);
    write_file(folder / "a.KVT", std::string(LARGEST_TEXT + 1, 'x'));
    EXPECT_EQ(fault_of([&] { read_file(folder / "a.KVT", LARGEST_TEXT); }).why,
              file_fault::reason::too_large);
    EXPECT_EQ(read_file(folder / "a.KVT").size(), LARGEST_TEXT + 1);
}

TEST(read_file, refuses_devices_and_pipes_without_waiting_for_them) {
    const temporary_folder folder;
    ASSERT_EQ(mkfifo((folder / "pipe.KVT").c_str(), 0600), 0);
    for (const fs::path& path : {folder / "pipe.KVT", fs::path("/dev/zero")}) {
        EXPECT_EQ(fault_of([&] { read_file(path); }).why, file_fault::reason::not_plain) << path;
    }
}

TEST(write_file, flushes_the_file_before_it_gets_its_name_and_then_the_folder) {
    const temporary_folder folder;
    flush_watch seen{folder / "a.KVT", {}};
    watch = &seen;
    write_file(folder / "a.KVT", "1");
    write_file(folder / "a.KVT", "2");
    EXPECT_EQ(seen.flushed, (lines{"file, none", "folder, 1", "file, 1", "folder, 2"}));
    seen.flushed.clear();
    write_file(folder / "a.KVT", "3", disk_write::left_to_the_system);
    EXPECT_EQ(seen.flushed, lines{});
    write_in_place(folder / "a.KVT", "4");
    EXPECT_EQ(seen.flushed, lines{"file, 4"});
    watch = nullptr;
}

TEST(write_file, names_the_reason_of_the_system) {
    const temporary_folder folder;
    EXPECT_EQ(fault_of([] { write_file("/dev/full", "text"); }).system_error, ENOSPC);
    EXPECT_EQ(fault_of([&] { write_file(folder.path(), "text"); }).system_error, EISDIR);
}

TEST(write_file, of_a_killed_program_leaves_the_old_file_and_the_next_one_cleans_the_folder) {
    const temporary_folder folder;
    write_file(folder / "a.KVT", "old");
    write_until_killed(folder / "a.KVT");
    EXPECT_EQ(read_file(folder / "a.KVT"), "old");
    ASSERT_EQ(names_in(folder.path()).size(), 2U) << "the temporary file of the killed program";
    write_file(folder / "b.KVT", "new");
    EXPECT_FALSE(fs::exists(folder / ".kvt-0.tmp"));
    EXPECT_EQ(names_in(folder.path()).size(), 2U);
}

TEST(write_file, leaves_a_temporary_file_alone_that_another_program_is_writing) {
    const temporary_folder folder;
    const descriptor other(
        ::open((folder / ".kvt-0.tmp").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    ASSERT_EQ(try_lock(other), lock_answer::taken);
    write_file(folder / "a.KVT", "new");
    EXPECT_TRUE(is_at(other, folder / ".kvt-0.tmp"));
    EXPECT_EQ(read_file(folder / "a.KVT"), "new");
}

TEST(write_file, leaves_files_alone_that_only_resemble_temporary_ones) {
    const temporary_folder folder;
    for (const char* name : {".kvt-.tmp", ".kvt-notes.tmp", ".kvt-1.tmp.txt", "kvt-1.tmp"}) {
        std::ofstream(folder / name) << "of a user";
    }
    fs::create_directory(folder / ".kvt-2.tmp");
    write_file(folder / "a.KVT", "new");
    EXPECT_EQ(names_in(folder.path()).size(), 6U);
}

TEST(write_file, fails_in_a_folder_that_takes_no_file_and_write_in_place_does_not) {
    const temporary_folder folder;
    write_file(folder / "a.KVT", "a longer old text");
    fs::permissions(folder / "a.KVT", fs::perms::all & ~fs::perms::others_exec);
    fs::permissions(folder.path(), fs::perms(0555));
    {
        const unprivileged somebody;
        EXPECT_EQ(fault_of([&] { write_file(folder / "a.KVT", "new"); }).system_error, EACCES);
        EXPECT_EQ(read_file(folder / "a.KVT"), "a longer old text");
        EXPECT_TRUE(is_only_written_in_place(folder / "a.KVT"));
        EXPECT_FALSE(is_only_written_in_place(folder / "b.KVT")) << "no such file";
        write_in_place(folder / "a.KVT", "new");
    }
    EXPECT_EQ(read_file(folder / "a.KVT"), "new");
    fs::permissions(folder.path(), fs::perms(0755));
}

TEST(is_only_written_in_place, is_false_for_a_file_that_can_be_replaced_or_not_be_written) {
    const temporary_folder folder;
    write_file(folder / "a.KVT", "text");
    EXPECT_FALSE(is_only_written_in_place(folder / "a.KVT"));
    fs::permissions(folder / "a.KVT", fs::perms(0444));
    fs::permissions(folder.path(), fs::perms(0555));
    {
        const unprivileged somebody;
        EXPECT_FALSE(is_only_written_in_place(folder / "a.KVT"));
        EXPECT_FALSE(is_only_written_in_place(folder.path()));
    }
    fs::permissions(folder.path(), fs::perms(0755));
}

TEST(write_at_start, leaves_what_stands_behind_the_bytes) {
    const temporary_folder folder;
    write_at_start(folder / "a.bin", "0123456789");
    write_at_start(folder / "a.bin", "new");
    EXPECT_EQ(read_file(folder / "a.bin"), "new3456789");
    write_at_start(folder / "a.bin", "");
    EXPECT_EQ(read_file(folder / "a.bin"), "new3456789");
}

TEST(write_at_start, needs_the_folder_and_tells_a_full_device) {
    const temporary_folder folder;
    EXPECT_FAILURE(write_at_start(folder / "none/a.bin", "x"), failure::path_not_found);
    EXPECT_EQ(fault_of([] { write_at_start("/dev/full", "text"); }).system_error, ENOSPC);
}

TEST(write_in_place, tells_a_full_device) {
    EXPECT_EQ(fault_of([] { write_in_place("/dev/full", "text"); }).system_error, ENOSPC);
}

}  // namespace

}  // namespace kvt

// Takes the place of the system's function in this program.
extern "C" int fsync(int file) {
    kvt::note_flush(file);
    return static_cast<int>(syscall(SYS_fsync, file));
}
