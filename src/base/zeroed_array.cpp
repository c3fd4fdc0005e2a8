#include "base/zeroed_array.hpp"

#include <cstring>
#include <new>

namespace kvt {

namespace {

constexpr std::size_t SHARED_COUNT = 72001;
constexpr std::size_t BLOCK = 512;  // numbers of a page

/// What arrays without memory show. Never written to, and not constant: a constant would fill the
/// program file with zeros.
double all_zero[SHARED_COUNT];

bool is_all_zero(const double* block, std::size_t count) {
    return std::memcmp(block, all_zero, count * sizeof(double)) == 0;
}

}  // namespace

zeroed_array::zeroed_array(std::size_t size) {
    size_as(size);
}

zeroed_array::zeroed_array(const zeroed_array& other) {
    size_as(other.size_);
    if (!other.numbers_) {
        return;
    }
    for (std::size_t first = 0; first < size_; first += BLOCK) {
        const double* block = other.numbers_.get() + first;
        const std::size_t count = std::min(BLOCK, size_ - first);
        if (!is_all_zero(block, count)) {
            std::copy_n(block, count, data() + first);
        }
    }
}

void zeroed_array::assign(std::size_t size, double value) {
    size_as(size);
    if (value != 0.0) {
        std::fill_n(data(), size, value);
    }
}

double* zeroed_array::make() {
    if (size_ > 0) {
        numbers_.reset(static_cast<double*>(std::calloc(size_, sizeof(double))));
        if (!numbers_) {
            throw std::bad_alloc();
        }
    }
    return numbers_.get();
}

void zeroed_array::size_as(std::size_t size) {
    numbers_.reset();
    size_ = size;
    if (size > SHARED_COUNT) {
        make();
    }
}

const double* zeroed_array::shared_zeros() {
    return all_zero;
}

}  // namespace kvt
