#include "kvt/study_progress.hpp"

#include "app/study/duration_text.hpp"
#include "base/number_text.hpp"

#include <cmath>
#include <csignal>
#include <ostream>
#include <string>

namespace kvt {

namespace {

constexpr std::chrono::milliseconds BETWEEN_LINES = std::chrono::milliseconds(500);

std::string count_text(std::uint64_t count) {
    return number_text(static_cast<double>(count));
}

// A handler of signals reaches nothing but what lives as long as the program.
std::atomic<bool> is_interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void interrupt(int) {
    is_interrupted = true;
    std::signal(SIGINT, SIG_DFL);
}

}  // namespace

study_progress::study_progress(std::ostream& err, std::uint64_t count, bool is_shown)
    : err_(err), count_(count), is_shown_(is_shown) {}

double study_progress::seconds() const {
    return std::chrono::duration<double>(clock::now() - start_).count();
}

void study_progress::step() {
    ++done_;
    const clock::time_point now = clock::now();
    if (is_shown_ && now - shown_ >= BETWEEN_LINES) {
        shown_ = now;
        show();
    }
}

void study_progress::show() {
    const double each = seconds() / static_cast<double>(done_);
    const double left = each * static_cast<double>(count_ - done_);
    const double percent = 100.0 * static_cast<double>(done_) / static_cast<double>(count_);
    err_ << "\r" << count_text(done_) << " of " << count_text(count_) << " designs, "
         << number_text(std::floor(percent)) << " %, " << duration_text(left) << " left   "
         << std::flush;
}

void study_progress::finish() {
    const double time = seconds();
    const double rate = time > 0.0 ? std::round(static_cast<double>(done_) / time) : 0.0;
    err_ << (is_shown_ ? "\r" : "") << count_text(done_) << " designs in " << duration_text(time)
         << ", " << number_text(rate) << " a second" << (is_shown_ ? "          " : "") << '\n';
}

interruption::interruption() : before_(std::signal(SIGINT, interrupt)) {
    is_interrupted = false;
}

interruption::~interruption() {
    std::signal(SIGINT, before_);
}

const std::atomic<bool>& interruption::flag() const {
    return is_interrupted;
}

}  // namespace kvt
