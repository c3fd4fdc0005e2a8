// ordered_work: numbered pieces of work on many threads, their results taken one after the other in
// the order of the numbers, whatever the threads do.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace kvt {

/// Numbers from `begin` to `end` - 1.
struct work_range {
    std::uint64_t begin = 0, end = 0;

    std::uint64_t size() const { return end - begin; }
};

/// The processors of the machine, at least 1.
inline unsigned processor_count() {
    const unsigned count = std::thread::hardware_concurrency();
    return count == 0 ? 1 : count;
}

/// Works on a range in `jobs` threads. At most 64 results a thread wait to be taken, so that memory
/// does not grow with the range.
template <typename result>
class ordered_work {
  public:
    using worker = std::function<result(std::uint64_t number)>;
    using taker = std::function<bool(std::uint64_t number, result&& done)>;

    ordered_work(work_range range, unsigned jobs)
        : range_(range),
          jobs_(jobs),
          next_(range.begin),
          taken_(range.begin),
          waiting_(jobs * WAITING_A_JOB) {}

    /// `make_worker` makes the worker of a thread, in that thread; `take` gets the results in the
    /// calling one and answers whether to go on. What a worker throws is thrown here, in its turn.
    /// True when all of the range was taken; false as soon as it was given up.
    bool run(const std::function<worker()>& make_worker, const taker& take,
             const std::atomic<bool>* is_given_up = nullptr) {
        std::vector<std::jthread> threads;
        const ending_of_work ending{*this};
        for (unsigned i = 0; i < jobs_; ++i) {
            threads.emplace_back([this, &make_worker] { work(make_worker); });
        }
        return take_all(take, is_given_up);
    }

  private:
    static constexpr std::size_t WAITING_A_JOB = 64;
    static constexpr std::chrono::milliseconds LOOK = std::chrono::milliseconds(50);

    struct outcome {
        std::optional<result> done;
        std::exception_ptr failure;
    };
    /// Lets the threads end, before they are joined, however the taking ends.
    struct ending_of_work {
        ordered_work& work;
        ~ending_of_work() { work.stop(); }
    };

    void stop() {
        {
            const std::lock_guard lock(mutex_);
            is_stopped_ = true;
        }
        changed_.notify_all();
    }

    std::optional<std::uint64_t> claim() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] {
            return is_stopped_ || next_ == range_.end || next_ - taken_ < waiting_.size();
        });
        return is_stopped_ || next_ == range_.end ? std::nullopt : std::optional(next_++);
    }

    void work(const std::function<worker()>& make_worker) {
        worker work_on;
        while (const std::optional<std::uint64_t> number = claim()) {
            outcome made;
            try {
                if (!work_on) {
                    work_on = make_worker();
                }
                made.done = work_on(*number);
            } catch (...) {
                made.failure = std::current_exception();
            }
            {
                const std::lock_guard lock(mutex_);
                slot(*number) = std::move(made);
            }
            changed_.notify_all();
        }
    }

    std::optional<outcome>& slot(std::uint64_t number) {
        return waiting_[static_cast<std::size_t>(number % waiting_.size())];
    }

    /// The next outcome; nothing when it was given up before.
    std::optional<outcome> next_outcome(const std::atomic<bool>* is_given_up) {
        std::unique_lock lock(mutex_);
        while (true) {
            if (is_given_up != nullptr && *is_given_up) {
                return std::nullopt;
            }
            if (std::optional<outcome>& made = slot(taken_)) {
                std::optional<outcome> next = std::exchange(made, std::nullopt);
                ++taken_;
                lock.unlock();
                changed_.notify_all();
                return next;
            }
            changed_.wait_for(lock, LOOK);
        }
    }

    bool take_all(const taker& take, const std::atomic<bool>* is_given_up) {
        for (std::uint64_t number = range_.begin; number < range_.end; ++number) {
            std::optional<outcome> next = next_outcome(is_given_up);
            if (!next) {
                return false;
            }
            if (next->failure) {
                std::rethrow_exception(next->failure);
            }
            if (!take(number, std::move(*next->done))) {
                return false;
            }
        }
        return true;
    }

    work_range range_;
    unsigned jobs_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::uint64_t next_;   ///< to be worked on
    std::uint64_t taken_;  ///< all before it
    std::vector<std::optional<outcome>> waiting_;
    bool is_stopped_ = false;
};

}  // namespace kvt
