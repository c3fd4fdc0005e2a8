// Tests of the Updates menu in the running program, with a server on this machine.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/web_server.hpp"

#include <QMenu>

namespace kvt {
namespace {

constexpr const char* LIST = "/gerotors/updates/KVT_updates.upd";

class update_server_test : public desktop_test {
  protected:
    update_server_test() {
        std::filesystem::create_directories(folder / "updates");
        write_file(folder / "update_server.txt", server.address() + "\r\n");
    }

    bool has_menu() { return find<QMenu>("mnuupdates")->menuAction()->isVisible(); }
    void check_now() { find<QAction>("mnuupdateschecknow")->trigger(); }
    std::string on_disk(const std::string& name) { return read_file(folder / ("updates/" + name)); }

    web_server server;
};

using texts = std::vector<std::string>;

TEST_F(update_server_test, shows_the_menu_with_a_server_alone) {
    start();
    EXPECT_TRUE(has_menu());
    EXPECT_TRUE(find<QAction>("mnuupdateschecknow")->isEnabled());
}

TEST_F(update_server_test, hides_the_menu_without_a_server_and_asks_nobody) {
    write_file(folder / "update_server.txt", "");
    start();
    EXPECT_FALSE(has_menu());
    EXPECT_FALSE(find<QMenu>("mnuupdates")->menuAction()->isEnabled());
    check_now();
    EXPECT_EQ(robot.messages, texts());
    EXPECT_TRUE(server.paths.empty());
}

TEST_F(update_server_test, needs_nothing_for_the_same_version) {
    server.files[LIST] = "2021.1.1\r\n";
    start();
    check_now();
    EXPECT_EQ(robot.messages, (texts{"Got file", "no update reqd"}));
    EXPECT_EQ(on_disk("KVT_updates.upd"), "2021.1.1\r\n");
}

TEST_F(update_server_test, fetches_the_files_of_another_version) {
    for (const char* version : {"2022.1.0", "2020.1.1"}) {
        server.files[LIST] = std::string(version) + "\r\nKVT.bin\r\nx\r\n";
        server.files["/gerotors/updates/KVT.bin"] = "program";
        start();
        robot.messages.clear();
        robot.answers = {"No"};
        check_now();
        ASSERT_GE(robot.messages.size(), 2U);
        EXPECT_EQ(robot.messages[0], "Got file");
        EXPECT_EQ(robot.messages[1], "needs update");
        EXPECT_EQ(on_disk("KVT.bin"), "program");
    }
}

TEST_F(update_server_test, keeps_the_end_of_a_longer_list) {
    write_file(folder / "updates/KVT_updates.upd", "2020.1.1\r\n0123456789\r\n");
    server.files[LIST] = "2021.1.1\r\n";
    start();
    check_now();
    EXPECT_EQ(on_disk("KVT_updates.upd"), "2021.1.1\r\n0123456789\r\n");
}

/// The fatal failures: what the user is told, and the entries in the recovery project.
class failed_update_test : public update_server_test {
  protected:
    void expect_failure(const std::string& number) {
        start();
        robot.failure_answers = {"Go On"};
        check_now();
        ASSERT_FALSE(robot.messages.empty());
        EXPECT_TRUE(robot.messages.back().starts_with("Run-time error " + number))
            << robot.messages.back();
        EXPECT_TRUE(std::filesystem::exists(folder / "recovery.KVT"));
        EXPECT_FALSE(desk().runner().has_ended());
    }
};

TEST_F(failed_update_test, tells_a_list_that_is_not_there) {
    expect_failure("35756: ");
}

TEST_F(failed_update_test, tells_a_server_that_is_not_there) {
    server.close();
    expect_failure("35754: ");
}

TEST_F(failed_update_test, tells_a_list_that_ends_early) {
    server.files[LIST] = "2022.1.0\r\nKVT.bin\r\n";
    server.files["/gerotors/updates/KVT.bin"] = "program";
    expect_failure("62: ");
    EXPECT_EQ(on_disk("KVT.bin"), "program");
}

TEST_F(failed_update_test, tells_a_name_that_leaves_the_folder) {
    server.files[LIST] = "2022.1.0\r\n../KVT.ini\r\nx\r\n";
    expect_failure("52: ");
    EXPECT_EQ(server.paths, texts{LIST});
}

TEST_F(update_server_test, of_auto_updates_changes_the_mark_alone) {
    start();
    auto* entry = find<QAction>("mnuupdatesauto");
    EXPECT_TRUE(entry->isChecked());
    entry->trigger();
    EXPECT_FALSE(entry->isChecked());
    EXPECT_EQ(robot.messages, texts{"Auto updates are OFF"});
    entry->trigger();
    EXPECT_TRUE(entry->isChecked());
    EXPECT_EQ(robot.messages.back(), "Auto updates are ON");
}

}  // namespace
}  // namespace kvt
