// Tests of the fetching of files, against a server on this machine.
#include "ui/parts/internet_transfer.hpp"

#include "base/run_time_error.hpp"
#include "support/expect_failure.hpp"
#include "ui/web_server.hpp"

namespace kvt {
namespace {

class internet_transfer_test : public testing::Test {
  protected:
    std::string fetch(const std::string& path) {
        return internet.open_url(server.address() + path, BYTES_MODE);
    }

    web_server server;
    internet_transfer internet;
};

TEST_F(internet_transfer_test, answers_the_bytes_of_a_file) {
    const std::string bytes("\0\r\n\xff", 4);
    server.files["/a/b.bin"] = bytes;
    EXPECT_EQ(fetch("/a/b.bin"), bytes);
    server.files["/empty"] = "";
    EXPECT_EQ(fetch("/empty"), "");
    EXPECT_EQ(server.paths, (std::vector<std::string>{"/a/b.bin", "/empty"}));
}

TEST_F(internet_transfer_test, fails_for_a_file_that_the_server_does_not_have) {
    EXPECT_FAILURE(fetch("/none"), failure::request_failed);
}

TEST_F(internet_transfer_test, fails_without_a_server) {
    server.close();
    EXPECT_FAILURE(fetch("/a"), failure::no_connection);
}

TEST_F(internet_transfer_test, follows_the_server_itself_and_no_other) {
    web_server other;
    other.files["/stolen"] = "other";
    server.files["/new"] = "new";
    server.redirections["/old"] = server.address() + "/new";
    server.redirections["/away"] = other.address() + "/stolen";
    EXPECT_EQ(fetch("/old"), "new");
    EXPECT_FAILURE(fetch("/away"), failure::request_failed);
    EXPECT_TRUE(other.paths.empty());
}

TEST_F(internet_transfer_test, gives_up_after_its_time) {
    EXPECT_EQ(internet_transfer::TIME_LIMIT_MS, 30000);
    server.is_silent = true;
    internet_transfer impatient(50);
    EXPECT_FAILURE(impatient.open_url(server.address() + "/a", BYTES_MODE),
                   failure::request_timed_out);
}

TEST_F(internet_transfer_test, reads_no_file_of_this_machine) {
    EXPECT_FAILURE(internet.open_url("file:///etc/hostname", BYTES_MODE), failure::no_connection);
    EXPECT_FAILURE(internet.open_url("no address", BYTES_MODE), failure::no_connection);
}

}  // namespace
}  // namespace kvt
