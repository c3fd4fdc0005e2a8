// Tests of the limits beside the windows: the newest entry wins.
#include "ui/parts/limits_worker.hpp"

#include "app/trial/design_trial.hpp"
#include "support/open_design.hpp"

#include <QTest>

#include <gtest/gtest.h>
#include <vector>

namespace kvt {

namespace {

class limits_worker_test : public testing::Test {
  protected:
    limits_worker_test() {
        QObject::connect(
            &worker, &limits_worker::found, &worker,
            [this](const std::optional<entry_limits>& limits) { found.push_back(limits); });
    }
    void start(const char* entry) {
        worker.start(std::make_shared<const program>(kavetta), *find_entry(entry),
                     calc_stage::profiles);
    }

    program kavetta = trial_copy(opened_design("n07_engine_oil_groove"));
    std::vector<std::optional<entry_limits>> found;
    limits_worker worker;
};

}  // namespace

TEST_F(limits_worker_test, tells_the_limits_in_this_thread) {
    start("shaftdiameter");
    EXPECT_TRUE(found.empty());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !found.empty(); }, 60000));
    ASSERT_TRUE(found[0] && found[0]->highest);
    EXPECT_EQ(found[0]->highest->shown, "25.8");
}

TEST_F(limits_worker_test, drops_those_of_an_entry_before) {
    start("ecc");
    start("shaftdiameter");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !found.empty(); }, 60000));
    QCoreApplication::processEvents();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0]->highest->shown, "25.8");
}

TEST_F(limits_worker_test, tells_nothing_when_given_up) {
    start("coarseness");
    worker.give_up();
    QTest::qWait(300);
    EXPECT_TRUE(found.empty());
}

}  // namespace kvt
