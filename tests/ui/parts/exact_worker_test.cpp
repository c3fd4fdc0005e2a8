// exact_worker: parts come one after the other, and not at all when they were given up.
#include "ui/parts/exact_worker.hpp"

#include <QTest>

#include <gtest/gtest.h>

namespace kvt {

namespace {

std::shared_ptr<const exact_source> source_of_pair(double ecc) {
    exact_source source;
    source.has_rotors = true;
    design_params& design = source.design;
    design.numlobes = 6;
    design.ecc = ecc;
    design.radouter = 9.0;
    design.radinnroot = 25.0 - 9.0 - ecc;
    design.outer_root = design.radinnroot + 3.0 * ecc;
    design.thick = 20.0;
    return std::make_shared<const exact_source>(source);
}

struct came_parts {
    explicit came_parts(exact_worker& worker) {
        QObject::connect(&worker, &exact_worker::worked_out, &worker,
                         [this](exact_part part, const exact_results& results) {
                             parts.push_back(part);
                             gaps.push_back(results.gap.gap.size());
                             swept.push_back(results.rotors.swept_cc);
                         });
    }
    std::vector<exact_part> parts;
    std::vector<std::size_t> gaps;
    std::vector<double> swept;
};

}  // namespace

TEST(exact_worker, tells_each_part_in_the_thread_of_the_windows) {
    exact_worker worker;
    const came_parts came(worker);
    worker.start(source_of_pair(3.0), {exact_part::rotors, exact_part::gap});
    EXPECT_TRUE(came.parts.empty()) << "nothing comes before the event loop runs";
    EXPECT_TRUE(QTest::qWaitFor([&] { return came.parts.size() == 2; }, 20000));
    EXPECT_EQ(came.parts, (std::vector{exact_part::rotors, exact_part::gap}));
    EXPECT_NEAR(came.swept[0], 11.733643, 5e-7);
    EXPECT_EQ(came.gaps[1], 361U);
}

TEST(exact_worker, the_last_design_alone_is_told) {
    exact_worker worker;
    const came_parts came(worker);
    worker.start(source_of_pair(3.0), {exact_part::gap, exact_part::rotors});
    worker.start(source_of_pair(2.0), {exact_part::rotors});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !came.parts.empty(); }, 20000));
    QTest::qWait(50);
    ASSERT_EQ(came.parts.size(), 1U);
    EXPECT_LT(came.swept[0], 9.0);
}

TEST(exact_worker, tells_nothing_after_it_was_given_up) {
    exact_worker worker;
    const came_parts came(worker);
    worker.start(source_of_pair(3.0), {exact_part::rotors, exact_part::gap});
    worker.give_up();
    QTest::qWait(100);
    EXPECT_TRUE(came.parts.empty());
}

TEST(exact_worker, can_go_while_it_works) {
    {
        exact_worker worker;
        worker.start(source_of_pair(3.0), {exact_part::gap, exact_part::rotors});
    }
    SUCCEED() << "its destructor has waited";
}

}  // namespace kvt
