// splashform: the picture at the start, and what comes when its time is over.
#include "ui/shell/splashform.hpp"

#include "ui/desktop_fixture.hpp"

#include <QSignalSpy>
#include <QTimer>

namespace kvt {

namespace {

class splashform_test : public desktop_test {
  protected:
    static splashform* splash() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<splashform*>(window)) {
                return found;
            }
        }
        return nullptr;
    }
    static QTimer* timer() { return splash()->findChild<QTimer*>("Timer1"); }
};

}  // namespace

TEST_F(splashform_test, stands_four_seconds_and_tells_it_once) {
    splashform form;
    const auto* timer = form.findChild<QTimer*>("Timer1");
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 4000);
    EXPECT_TRUE(timer->isSingleShot());
    EXPECT_FALSE(timer->isActive());
    form.show();
    EXPECT_TRUE(timer->isActive());
}

TEST_F(splashform_test, does_not_lie_above_other_windows_for_good) {
    const splashform form;
    EXPECT_FALSE(form.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(splashform_test, is_followed_by_the_prompt_and_then_by_the_main_window) {
    program_on_screen = std::make_unique<desktop>(folder.path());
    ASSERT_TRUE(desk().show_splash());
    ASSERT_NE(splash(), nullptr);
    EXPECT_TRUE(splash()->isVisible());
    EXPECT_FALSE(window().isVisible());
    robot.prompts.emplace_back("new");
    robot.names.emplace_back("first pump");
    bool prompt_before_window = false;
    robot.at_prompt = [&] {
        prompt_before_window = splash()->isVisible() && !window().isVisible();
    };
    timer()->start(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window().isVisible(); }));
    EXPECT_TRUE(prompt_before_window);
    EXPECT_FALSE(splash()->isVisible());
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021 - 'first pump'");
}

TEST_F(splashform_test, is_not_shown_without_settings) {
    std::filesystem::remove(folder.path() / "KVT.ini");
    program_on_screen = std::make_unique<desktop>(folder.path());
    EXPECT_FALSE(desk().show_splash());
    EXPECT_EQ(splash(), nullptr);
    EXPECT_EQ(robot.messages.size(), 1U);
}

}  // namespace kvt
