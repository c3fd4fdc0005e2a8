// latest_task: what was asked for last alone ends, in the thread of the windows.
#include "ui/parts/latest_task.hpp"

#include <QTest>
#include <QThread>

#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

namespace kvt {

namespace {

constexpr int PATIENCE_MS = 20000;

}  // namespace

TEST(latest_task, works_elsewhere_and_ends_in_the_thread_of_the_windows) {
    latest_task task;
    QThread* worked = nullptr;
    QThread* ended = nullptr;
    task.start([&](const std::atomic<bool>&) -> latest_task::ending {
        worked = QThread::currentThread();
        return [&] { ended = QThread::currentThread(); };
    });
    EXPECT_EQ(ended, nullptr) << "nothing ends before the event loop runs";
    ASSERT_TRUE(QTest::qWaitFor([&] { return ended != nullptr; }, PATIENCE_MS));
    EXPECT_EQ(ended, QThread::currentThread());
    EXPECT_NE(worked, ended);
}

TEST(latest_task, the_newest_work_wins) {
    latest_task task;
    std::vector<int> ended;
    for (int number = 1; number <= 50; ++number) {
        task.start([&ended, number](const std::atomic<bool>&) -> latest_task::ending {
            return [&ended, number] { ended.push_back(number); };
        });
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return !ended.empty(); }, PATIENCE_MS));
    QTest::qWait(50);
    EXPECT_EQ(ended, std::vector{50});
}

TEST(latest_task, what_was_given_up_does_not_end) {
    latest_task task;
    bool has_ended = false;
    task.start(
        [&](const std::atomic<bool>&) -> latest_task::ending { return [&] { has_ended = true; }; });
    task.give_up();
    QTest::qWait(100);
    EXPECT_FALSE(has_ended);
}

TEST(latest_task, work_that_fails_has_no_ending_and_the_next_one_goes_on) {
    latest_task task;
    task.start([](const std::atomic<bool>&) -> latest_task::ending {
        throw std::out_of_range("no such element");
    });
    QTest::qWait(50);
    bool has_ended = false;
    task.start(
        [&](const std::atomic<bool>&) -> latest_task::ending { return [&] { has_ended = true; }; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return has_ended; }, PATIENCE_MS));
}

TEST(latest_task, waits_for_its_work_when_it_goes) {
    std::atomic<bool> is_done = false;
    std::atomic<bool> is_begun = false;
    {
        latest_task task;
        task.start([&](const std::atomic<bool>&) -> latest_task::ending {
            is_begun = true;
            QThread::msleep(50);
            is_done = true;
            return [] {};
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return is_begun.load(); }, PATIENCE_MS));
    }
    EXPECT_TRUE(is_done);
}

}  // namespace kvt
