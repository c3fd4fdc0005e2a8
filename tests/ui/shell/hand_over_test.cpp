// Projects of a later start: what is asked and answered, sockets that were left, programs that
// hang.
#include "ui/shell/hand_over.hpp"

#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/shell/handover_server.hpp"
#include "ui/shell/handover_words.hpp"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QSignalSpy>

#include <future>

namespace kvt {

namespace {

/// Another start of the program, in a thread, while this one answers its events.
bool handed_over_meanwhile(const QString& place, const std::string& project) {
    std::future<bool> start =
        std::async(std::launch::async, [&] { return hand_over(place, project); });
    while (start.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    QCoreApplication::processEvents();
    return start.get();
}

class handover_test : public testing::Test {
  protected:
    handover_server::decision always(handover_answer answer) {
        return [answer](const std::string&) { return answer; };
    }
    /// The projects that a server is handed from now on.
    std::vector<std::string>& handed_to(handover_server& server) {
        QObject::connect(&server, &handover_server::handed_over, &server,
                         [this](const std::string& project) { handed.push_back(project); });
        return handed;
    }

    temporary_folder folder;
    QString place = qt_text(utf8_of_path(folder / "kavetta"));
    std::vector<std::string> handed;
};

const std::string PROJECT = "/a folder/p\xC3\xBCmp\n%20.KVT";

}  // namespace

TEST(handover_words, stand_in_one_line_and_come_back_as_they_were) {
    const QByteArrayList words = {HANDED, QByteArray::fromStdString(PROJECT), ""};
    const QByteArray line = line_of_words(words);
    EXPECT_EQ(line, "handed %2Fa%20folder%2Fp%C3%BCmp%0A%2520.KVT \n");
    EXPECT_EQ(words_of_line(line), words);
}

TEST(handover_words, know_their_answers_and_no_others) {
    for (const auto answer :
         {handover_answer::shows, handover_answer::takes, handover_answer::declines}) {
        EXPECT_EQ(answer_of_word(word_of_answer(answer)), answer);
    }
    EXPECT_EQ(answer_of_word("anything"), std::nullopt);
}

TEST(handover_place, is_one_of_a_folder_and_of_a_screen) {
    const QByteArray screen = qgetenv("DISPLAY");
    const QString place = handover_place("/a/b");
    EXPECT_EQ(handover_place("/a/x/../b"), place);
    EXPECT_NE(handover_place("/a/c"), place);
    qputenv("DISPLAY", screen + "1");
    EXPECT_NE(handover_place("/a/b"), place);
    screen.isNull() ? qunsetenv("DISPLAY") : qputenv("DISPLAY", screen);
}

TEST_F(handover_test, reaches_a_program_that_takes_the_project) {
    handover_server server(place, always(handover_answer::takes));
    ASSERT_TRUE(server.is_listening());
    handed_to(server);
    EXPECT_TRUE(handed_over_meanwhile(place, PROJECT));
    EXPECT_EQ(handed, std::vector<std::string>{PROJECT});
}

TEST_F(handover_test, brings_the_token_of_the_desktop_along) {
    handover_server server(place, always(handover_answer::shows));
    QByteArray brought;
    QObject::connect(&server, &handover_server::handed_over, &server,
                     [&](const std::string&, const QByteArray& token) { brought = token; });
    qputenv("XDG_ACTIVATION_TOKEN", "a token");
    EXPECT_TRUE(handed_over_meanwhile(place, PROJECT));
    qunsetenv("XDG_ACTIVATION_TOKEN");
    EXPECT_EQ(brought, "a token");
}

TEST_F(handover_test, fails_where_no_program_runs) {
    EXPECT_FALSE(hand_over(place, PROJECT));
    EXPECT_FALSE(hand_over(QString(), PROJECT));
}

TEST_F(handover_test, fails_when_all_decline) {
    handover_server first(place, always(handover_answer::declines));
    handover_server second(place, always(handover_answer::declines));
    handed_to(first);
    handed_to(second);
    EXPECT_FALSE(handed_over_meanwhile(place, PROJECT));
    EXPECT_TRUE(handed.empty());
}

TEST_F(handover_test, prefers_the_program_that_shows_the_project_already) {
    handover_server taking(place, always(handover_answer::takes));
    handover_server showing(place, always(handover_answer::shows));
    ASSERT_TRUE(showing.is_listening());
    handed_to(showing);
    QSignalSpy nothing(&taking, &handover_server::handed_over);
    EXPECT_TRUE(handed_over_meanwhile(place, PROJECT));
    EXPECT_EQ(handed.size(), 1U);
    EXPECT_TRUE(nothing.isEmpty());
}

TEST_F(handover_test, survives_the_socket_of_a_program_that_was_killed) {
    {
        QLocalServer killed;
        ASSERT_TRUE(killed.listen(handover_socket(place, 1)));
        // The server deletes its socket when it goes; a killed one doesn't.
        std::filesystem::rename(handover_socket(place, 1).toStdString(), folder / "kept");
    }
    std::filesystem::rename(folder / "kept", handover_socket(place, 1).toStdString());
    EXPECT_FALSE(hand_over(place, PROJECT));
    handover_server server(place, always(handover_answer::takes));
    EXPECT_TRUE(server.is_listening());
    handed_to(server);
    EXPECT_TRUE(handed_over_meanwhile(place, PROJECT));
    EXPECT_EQ(handed.size(), 1U);
}

TEST_F(handover_test, waits_no_longer_than_its_limit_for_a_program_that_hangs) {
    handover_server hanging(place, always(handover_answer::takes));
    handed_to(hanging);
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(hand_over(place, PROJECT));  // in this thread: nobody answers events
    EXPECT_GE(clock.elapsed(), HANDOVER_ANSWER_MS);
    EXPECT_LT(clock.elapsed(), 10 * HANDOVER_ANSWER_MS);
    QCoreApplication::processEvents();
    EXPECT_TRUE(handed.empty()) << "the other start has a window of its own by now";
}

TEST_F(handover_test, finds_a_program_behind_one_that_hangs) {
    QLocalServer hanging;
    ASSERT_TRUE(hanging.listen(handover_socket(place, 1)));
    const std::optional<file_lock> lock =
        file_lock::take((handover_socket(place, 1) + ".lock").toStdString());
    handover_server server(place, always(handover_answer::takes));
    handed_to(server);
    EXPECT_TRUE(handed_over_meanwhile(place, PROJECT));
    EXPECT_EQ(handed.size(), 1U);
}

TEST_F(handover_test, leaves_nothing_behind) {
    {
        handover_server server(place, always(handover_answer::takes));
        const std::optional<file_lock> turn = wait_for_handover_turn(place);
        EXPECT_FALSE(std::filesystem::is_empty(folder.path()));
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(handover_test, answers_no_line_that_it_does_not_know) {
    handover_server server(place, always(handover_answer::takes));
    handed_to(server);
    QLocalSocket other;
    other.connectToServer(handover_socket(place, 1));
    ASSERT_TRUE(other.waitForConnected());
    other.write("handed\nfetch a b\n\n%%% %%%\n" + line_of_words({ASKED, "/a/b.KVT"}));
    QTRY_VERIFY(other.canReadLine());
    EXPECT_EQ(other.readAll(), "takes\n");
    EXPECT_TRUE(handed.empty());
}

TEST_F(handover_test, lets_one_start_after_the_other_ask) {
    std::optional<file_lock> turn = wait_for_handover_turn(place);
    ASSERT_TRUE(turn);
    EXPECT_FALSE(wait_for_handover_turn(place)) << "it goes on without after a while";
    turn.reset();
    EXPECT_TRUE(wait_for_handover_turn(place));
}

namespace {

class handed_desktop : public desktop_test {
  protected:
    /// The running program is started, with a project, and can be reached.
    void start_reachable(const std::string& path = {}) {
        start(path);
        desk().take_projects(place());
    }
    QString place() { return qt_text(utf8_of_path(folder / "kavetta")); }
    bool hand(const std::string& project) {
        const bool is_taken = handed_over_meanwhile(place(), project);
        settle();
        return is_taken;
    }
};

}  // namespace

TEST_F(handed_desktop, opens_the_project_of_a_later_start_in_its_window) {
    start_reachable();
    EXPECT_TRUE(hand(design_file("n04_fuel")));
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021 - 'n04_fuel'");
    EXPECT_EQ(shown("numlobes"), "4");
    EXPECT_TRUE(robot.questions.empty());
}

TEST_F(handed_desktop, only_comes_to_the_front_with_the_project_that_it_shows) {
    const std::string own = own_design_file("n04_fuel");
    start_reachable(own);
    type("ecc", "2.75");
    window().showMinimized();
    EXPECT_TRUE(hand(own));
    EXPECT_FALSE(window().isMinimized());
    EXPECT_EQ(shown("ecc"), "2.75") << "it is not read again";
}

TEST_F(handed_desktop, keeps_its_unsaved_entries_and_leaves_the_other_project_to_the_later_start) {
    start_reachable();
    type("ecc", "2.75");
    EXPECT_FALSE(hand(design_file("n04_fuel")));
    EXPECT_EQ(shown("ecc"), "2.75");
}

TEST_F(handed_desktop, leaves_the_project_to_the_later_start_while_a_dialog_is_open) {
    start_reachable();
    std::optional<bool> is_taken;
    robot.left_open = "Aboutform";
    QTimer::singleShot(0, [&] {
        is_taken = handed_over_meanwhile(place(), design_file("n04_fuel"));
        QApplication::activeModalWidget()->close();
    });
    choose("mnuhelpabout");
    EXPECT_EQ(is_taken, false);
    EXPECT_EQ(shown("numlobes"), "3");
}

TEST_F(handed_desktop, goes_on_with_its_start_when_the_same_project_comes_once_more) {
    program_on_screen = std::make_unique<desktop>(folder.path());
    desk().take_projects(place());
    ASSERT_TRUE(desk().show_splash(design_file("n04_fuel")));
    EXPECT_TRUE(handed_over_meanwhile(place(), design_file("n04_fuel")));
    EXPECT_FALSE(handed_over_meanwhile(place(), design_file("n09_crank_oil")));
    EXPECT_FALSE(window().isVisible());
}

}  // namespace kvt
