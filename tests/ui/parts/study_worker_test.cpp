// Tests of a study beside the windows: its rows, its end, stopping it.
#include "ui/parts/study_worker.hpp"

#include "app/study/study_problem.hpp"
#include "app/trial/design_trial.hpp"
#include "support/open_design.hpp"

#include <QTest>

#include <gtest/gtest.h>

namespace kvt {

namespace {

constexpr int LONG = 60000;

class study_worker_test : public testing::Test {
  protected:
    study_worker_test() {
        QObject::connect(&worker, &study_worker::came, &worker,
                         [this](const std::vector<study_row>& rows) {
                             came.insert(came.end(), rows.begin(), rows.end());
                         });
        QObject::connect(&worker, &study_worker::progressed, &worker,
                         [this](quint64 done, quint64 count, double) {
                             last_done = done;
                             last_count = count;
                         });
        QObject::connect(&worker, &study_worker::ended, &worker,
                         [this](const QString& problem) { ends.push_back(problem); });
        asked.varied = {"ecc=2:2.6"};
        asked.sample = "sobol:40";
        asked.recorded = {"capacity"};
    }
    std::shared_ptr<const study> start() {
        return worker.start(std::make_shared<const program>(kavetta), asked);
    }
    bool wait_for_end() {
        return QTest::qWaitFor([this] { return !ends.empty(); }, LONG);
    }

    program kavetta = trial_copy(opened_design("n07_engine_oil_groove"));
    study_document asked;
    std::vector<study_row> came;
    quint64 last_done = 0, last_count = 0;
    std::vector<QString> ends;
    study_worker worker;
};

}  // namespace

TEST_F(study_worker_test, hands_on_every_row_in_its_turn) {
    const auto designs = start();
    EXPECT_TRUE(worker.is_running());
    ASSERT_TRUE(wait_for_end());
    EXPECT_FALSE(worker.is_running());
    EXPECT_EQ(ends, std::vector<QString>{QString()});
    ASSERT_EQ(came.size(), 40U);
    program tried;
    for (std::size_t i = 0; i < came.size(); ++i) {
        EXPECT_EQ(came[i].number, i);
        EXPECT_EQ(came[i].values, designs->calculate(designs->texts_of(i), tried).values);
    }
    EXPECT_EQ(last_done, 40U);
    EXPECT_EQ(last_count, 40U);
}

TEST_F(study_worker_test, leaves_out_what_misses_the_conditions) {
    asked.conditions = {"ecc<2.3"};
    start();
    ASSERT_TRUE(wait_for_end());
    EXPECT_EQ(came.size(), 20U);
    EXPECT_EQ(last_done, 40U);
}

TEST_F(study_worker_test, stops_at_once_and_keeps_what_came) {
    asked.sample = "sobol:1000000";
    start();
    ASSERT_TRUE(QTest::qWaitFor([this] { return came.size() > 10; }, LONG));
    worker.stop();
    EXPECT_FALSE(worker.is_running());
    EXPECT_EQ(ends.size(), 1U);
    const std::size_t then = came.size();
    QTest::qWait(300);
    EXPECT_EQ(came.size(), then);
    EXPECT_EQ(ends.size(), 1U);
}

TEST_F(study_worker_test, gives_up_a_study_for_the_next) {
    asked.sample = "sobol:1000000";
    start();
    asked.sample = "sobol:5";
    start();
    ASSERT_TRUE(wait_for_end());
    EXPECT_EQ(ends.size(), 1U);
    EXPECT_EQ(came.size(), 5U);
}

TEST_F(study_worker_test, searches) {
    asked.searches = true;
    asked.varied = {"ecc=2:2.6:0.1", "numlobes=6,7"};
    asked.aims = {"capacity:max"};
    asked.budget = 100;
    start();
    ASSERT_TRUE(wait_for_end());
    EXPECT_EQ(came.size(), 14U) << "all there are";
}

TEST_F(study_worker_test, refuses_a_study_that_is_none_before_it_starts) {
    asked.varied = {"ecc=3:2"};
    EXPECT_THROW(start(), study_problem);
    EXPECT_FALSE(worker.is_running());
}

}  // namespace kvt
