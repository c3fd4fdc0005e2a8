// Tests of work on many threads: the order, the end, what is thrown, giving up.
#include "app/study/ordered_work.hpp"

#include <gtest/gtest.h>
#include <set>
#include <stdexcept>
#include <string>

namespace kvt {
namespace {

using work = ordered_work<std::uint64_t>;

work::worker squares() {
    return [](std::uint64_t number) { return number * number; };
}

class ordered_work_in_threads : public testing::TestWithParam<unsigned> {};

TEST_P(ordered_work_in_threads, hands_on_every_result_in_its_turn) {
    std::uint64_t next = 10;
    const bool is_whole = work({10, 5000}, GetParam())
                              .run(squares, [&](std::uint64_t number, std::uint64_t&& square) {
                                  EXPECT_EQ(number, next);
                                  EXPECT_EQ(square, next * next);
                                  ++next;
                                  return true;
                              });
    EXPECT_TRUE(is_whole);
    EXPECT_EQ(next, 5000U);
}

TEST_P(ordered_work_in_threads, keeps_the_order_when_early_pieces_take_long) {
    const auto uneven = [] {
        return work::worker([](std::uint64_t number) {
            std::this_thread::sleep_for(std::chrono::microseconds(number % 7 == 0 ? 500 : 0));
            return number;
        });
    };
    std::uint64_t next = 0;
    work({0, 200}, GetParam()).run(uneven, [&](std::uint64_t, std::uint64_t&& number) {
        return number == next++;
    });
    EXPECT_EQ(next, 200U);
}

TEST_P(ordered_work_in_threads, throws_what_a_worker_throws_in_its_turn) {
    const auto failing = [] {
        return work::worker([](std::uint64_t number) {
            if (number == 20) {
                throw std::runtime_error("piece 20");
            }
            return number;
        });
    };
    std::uint64_t taken = 0;
    EXPECT_THROW(work({0, 1000}, GetParam())
                     .run(failing,
                          [&](std::uint64_t, std::uint64_t&&) {
                              ++taken;
                              return true;
                          }),
                 std::runtime_error);
    EXPECT_EQ(taken, 20U);
}

TEST_P(ordered_work_in_threads, ends_when_its_taker_has_enough) {
    std::uint64_t taken = 0;
    EXPECT_FALSE(work({0, 1000000}, GetParam()).run(squares, [&](std::uint64_t, std::uint64_t&&) {
        return ++taken < 50;
    }));
    EXPECT_EQ(taken, 50U);
}

TEST_P(ordered_work_in_threads, ends_when_it_is_given_up) {
    std::atomic<bool> is_given_up = false;
    std::uint64_t taken = 0;
    const auto take = [&](std::uint64_t, std::uint64_t&&) {
        is_given_up = ++taken == 30;
        return true;
    };
    EXPECT_FALSE(work({0, 1000000}, GetParam()).run(squares, take, &is_given_up));
    EXPECT_EQ(taken, 30U);
}

TEST_P(ordered_work_in_threads, has_nothing_to_do_in_an_empty_range) {
    EXPECT_TRUE(work({7, 7}, GetParam()).run(squares, [](std::uint64_t, std::uint64_t&&) {
        return false;
    }));
}

TEST_P(ordered_work_in_threads, never_runs_far_ahead_of_its_taker) {
    std::atomic<std::uint64_t> done = 0;
    const auto counting = [&] {
        return work::worker([&](std::uint64_t number) {
            ++done;
            return number;
        });
    };
    std::uint64_t taken = 0;
    std::uint64_t most_ahead = 0;
    work({0, 20000}, GetParam()).run(counting, [&](std::uint64_t, std::uint64_t&&) {
        most_ahead = std::max(most_ahead, done - ++taken);
        return true;
    });
    EXPECT_LE(most_ahead, GetParam() * 64U);
}

INSTANTIATE_TEST_SUITE_P(threads, ordered_work_in_threads, testing::Values(1U, 2U, 5U));

TEST(ordered_work, makes_a_worker_a_thread) {
    std::mutex mutex;
    std::set<std::thread::id> makers;
    const auto make = [&] {
        const std::lock_guard lock(mutex);
        makers.insert(std::this_thread::get_id());
        return squares();
    };
    work({0, 1000}, 3).run(make, [](std::uint64_t, std::uint64_t&&) { return true; });
    EXPECT_GE(makers.size(), 1U);
    EXPECT_LE(makers.size(), 3U);
    EXPECT_FALSE(makers.contains(std::this_thread::get_id()));
}

}  // namespace
}  // namespace kvt
