// Tests of the update check: the list, the files that it names, and the order of what is told. The
// server is a table; update_server_test fetches from a real one.
#include "app/desk/update_check.hpp"

#include "app/files/project_fixture.hpp"
#include "core/internet_control.hpp"
#include "support/environment_value.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <map>

namespace kvt {
namespace {

class table_server : public internet_control {
  public:
    void access_type(int type) override { log.push_back("type " + std::to_string(type)); }
    std::string open_url(const std::string& url, int mode) override {
        log.push_back(std::to_string(mode) + " " + url);
        const auto found = files.find(url);
        if (found == files.end()) {
            throw run_time_error(failure::request_failed, url);
        }
        return found->second;
    }

    std::map<std::string, std::string> files;
    std::vector<std::string> log;
};

class update_check_test : public project_test {
  protected:
    update_check_test() {
        std::filesystem::create_directories(folder / "updates");
        kavetta.app_state.update_server = "https://server.test";
        person.answers = {answer::yes};
    }

    void serve(const std::string& name, const std::string& bytes) {
        server.files["https://server.test/gerotors/updates/" + name] = bytes;
    }
    void serve_list(const std::string& bytes) { serve("KVT_updates.upd", bytes); }
    void check() { check_for_updates(kavetta, person, server); }

    std::string on_disk(const std::string& name) { return read_file(folder / ("updates/" + name)); }
    std::size_t files_on_disk() {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(folder / "updates"), {}));
    }
    std::string server_of(const std::string& bytes) {
        write_file(folder / UPDATE_SERVER_FILE, bytes);
        return configured_update_server(folder.path());
    }

    environment_value environment_server{"KAVETTA_UPDATE_SERVER", std::nullopt};
    table_server server;
};

const std::string QUESTION =
    "Updates to Kavetta are ready to be installed. Would you like to install these now (requires "
    "KVT to close)?";

TEST_F(update_check_test, of_the_same_version_leaves_the_list_alone_behind) {
    serve_list("2021.1.1\r\na.bin\r\n\r\n");
    check();
    EXPECT_EQ(person.log, (std::vector<std::string>{"message Got file", "message no update reqd"}));
    EXPECT_EQ(on_disk("KVT_updates.upd"), "2021.1.1\r\na.bin\r\n\r\n");
    EXPECT_EQ(files_on_disk(), 1U);
    EXPECT_EQ(server.log, (std::vector<std::string>{
                              "type 0", "1 https://server.test/gerotors/updates/KVT_updates.upd"}));
}

TEST_F(update_check_test, fetches_the_listed_files_of_any_other_version_and_asks) {
    for (const char* version : {"2022.1.0", "2020.9.9", " 2021.1.1", ""}) {
        person.log.clear();
        person.answers = {answer::no};
        serve_list(std::string(version) + "\r\nKVT.bin\r\n12345\r\nhelp v2.pdf\nsecond line");
        serve("KVT.bin", std::string("\0\xff\r\n", 4));
        serve("help v2.pdf", "%PDF");
        check();
        EXPECT_EQ(person.log, (std::vector<std::string>{"message Got file", "message needs update",
                                                        "ask " + QUESTION}))
            << version;
        EXPECT_EQ(on_disk("KVT.bin"), std::string("\0\xff\r\n", 4));
        EXPECT_EQ(on_disk("help v2.pdf"), "%PDF");
    }
}

TEST_F(update_check_test, asks_in_english_whatever_the_language_and_installs_nothing) {
    kavetta.app_state.language = GERMAN;
    serve_list("2022.1.0\r\n");
    check();
    EXPECT_EQ(person.questions, std::vector<std::string>{QUESTION});
    EXPECT_EQ(files_on_disk(), 1U);
}

TEST_F(update_check_test, keeps_the_end_of_a_longer_file) {
    write_file(folder / "updates/KVT_updates.upd", "2020.1.1\r\nold.bin\r\nx\r\n");
    write_file(folder / "updates/old.bin", "0123456789");
    serve_list("2022.1.0\r\n");
    serve("old.bin", "new");
    check();
    EXPECT_EQ(on_disk("KVT_updates.upd"), "2022.1.0\r\nold.bin\r\nx\r\n");
    EXPECT_EQ(on_disk("old.bin"), "new3456789") << "the old list's end is read again";
}

TEST_F(update_check_test, fails_past_the_end_behind_a_name_without_a_second_line) {
    serve_list("2022.1.0\r\na.bin\r\nx\r\nb.bin\r\n");
    serve("a.bin", "a");
    serve("b.bin", "b");
    EXPECT_FAILURE(check(), failure::input_past_end);
    EXPECT_EQ(on_disk("b.bin"), "b") << "it was fetched before";
    EXPECT_TRUE(person.questions.empty());
}

TEST_F(update_check_test, fails_past_the_end_of_an_empty_list) {
    serve_list("");
    EXPECT_FAILURE(check(), failure::input_past_end);
}

TEST_F(update_check_test, fetches_nothing_under_a_name_that_leaves_the_folder) {
    for (const char* name : {"..", "../a.bin", "a/b", "a\\b", "C:a", "", ".", "a..b", "a\xff"}) {
        serve_list("2022.1.0\r\n" + std::string(name) + "\r\nx\r\n");
        server.log.clear();
        EXPECT_FAILURE(check(), failure::bad_file_name);
        EXPECT_EQ(server.log.size(), 2U) << name;
        std::filesystem::remove(folder / "updates/KVT_updates.upd");
    }
    EXPECT_EQ(run_time_error(failure::bad_file_name).number(), 52);
}

/// Has every file.
class full_server : public table_server {
    std::string open_url(const std::string& url, int mode) override {
        files.emplace(url, "bytes");
        return table_server::open_url(url, mode);
    }
};

TEST_F(update_check_test, writes_nowhere_else_for_any_list) {
    random_values random;
    const auto outside = [this] {
        return std::distance(std::filesystem::directory_iterator(folder.path()), {});
    };
    const auto before = outside();
    for (int run = property_count(100); run > 0; --run) {
        full_server any;
        any.files["https://server.test/gerotors/updates/KVT_updates.upd"] =
            random.text("ab./\\:\r\n \xff", 40);
        person.answers = {answer::no};
        try {
            check_for_updates(kavetta, person, any);
        } catch (const run_time_error&) {
            // One of the failures that a list can end in.
        }
        ASSERT_EQ(outside(), before);
        std::filesystem::remove_all(folder / "updates");
        std::filesystem::create_directories(folder / "updates");
    }
}

TEST_F(update_check_test, stops_at_a_file_that_is_not_there_and_keeps_what_it_has) {
    serve_list("2022.1.0\r\na.bin\r\nx\r\nb.bin\r\nx\r\n");
    serve("a.bin", "a");
    EXPECT_FAILURE(check(), failure::request_failed);
    EXPECT_EQ(on_disk("a.bin"), "a");
    EXPECT_EQ(person.messages, (std::vector<std::string>{"Got file", "needs update"}));
}

TEST_F(update_check_test, needs_the_folder) {
    std::filesystem::remove(folder / "updates");
    serve_list("2021.1.1\r\n");
    EXPECT_FAILURE(check(), failure::path_not_found);
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(update_check_test, fails_without_a_server_and_the_menu_entry_does_nothing) {
    kavetta.app_state.update_server.clear();
    check_for_updates_now(kavetta, person, server);
    EXPECT_TRUE(server.log.empty());
    EXPECT_FAILURE(check(), failure::no_connection);
    EXPECT_EQ(server.log, std::vector<std::string>{"type 0"});
}

TEST_F(update_check_test, runs_from_the_menu_with_a_server) {
    serve_list("2021.1.1\r\n");
    check_for_updates_now(kavetta, person, server);
    EXPECT_EQ(person.messages.back(), "no update reqd");
}

TEST_F(update_check_test, takes_the_server_from_the_first_line_of_the_file) {
    EXPECT_EQ(configured_update_server(folder.path()), "") << "no file";
    EXPECT_EQ(server_of(""), "");
    EXPECT_EQ(server_of(" \r\nsecond.test\r\n"), "");
    EXPECT_EQ(server_of("first.test:8080\r\nsecond.test\r\n"), "https://first.test:8080");
    EXPECT_EQ(server_of("http://first.test/\n"), "http://first.test");
}

TEST_F(update_check_test, takes_the_server_of_the_environment_first) {
    environment_server.set("http://127.0.0.1:9");
    EXPECT_EQ(server_of("first.test"), "http://127.0.0.1:9");
    environment_server.set(" ");
    EXPECT_EQ(server_of("first.test"), "") << "switched off";
}

TEST_F(update_check_test, of_auto_updates_turns_its_mark_around_and_nothing_else) {
    kavetta.app_state.auto_update_mode = "auto";
    toggle_auto_updates(kavetta, person);
    EXPECT_FALSE(kavetta.app_state.auto_updates);
    toggle_auto_updates(kavetta, person);
    EXPECT_TRUE(kavetta.app_state.auto_updates);
    kavetta.app_state.language = GERMAN;
    toggle_auto_updates(kavetta, person);
    toggle_auto_updates(kavetta, person);
    EXPECT_EQ(
        person.messages,
        (std::vector<std::string>{"Auto updates are OFF", "Auto updates are ON",
                                  "Autoaktualisierungen sind AB", "Autoaktualisierungen sind AB"}));
    EXPECT_EQ(kavetta.app_state.auto_update_mode, "auto");
}

}  // namespace
}  // namespace kvt
