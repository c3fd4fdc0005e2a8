#include "base/zeroed_array.hpp"

#include <cstdlib>
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

zeroed_array::zeroed_array(const zeroed_array& other) noexcept
    : size_(other.size_), memory_(other.memory_) {
    if (memory_ != nullptr) {
        memory_->owners.fetch_add(1, std::memory_order_relaxed);
    }
}

void zeroed_array::assign(std::size_t size, double value) {
    size_as(size);
    if (value != 0.0) {
        std::fill_n(data(), size, value);
    }
}

/// Nothing to write to in an empty array.
double* zeroed_array::make_own() {
    if (size_ == 0) {
        return nullptr;
    }
    const zeroed_array shared = std::move(*this);
    size_ = shared.size_;
    make();
    if (shared.memory_ != nullptr) {
        take(shared);
    }
    return memory_->numbers();
}

/// Fresh memory, all 0.
void zeroed_array::make() {
    void* fresh = std::calloc(1, sizeof(shared_memory) + size_ * sizeof(double));
    if (fresh == nullptr) {
        throw std::bad_alloc();
    }
    memory_ = new (fresh) shared_memory{1};
}

/// The numbers of an array of the same size, as far as they are not 0.
void zeroed_array::take(const zeroed_array& other) {
    for (std::size_t first = 0; first < size_; first += BLOCK) {
        const double* block = other.data() + first;
        const std::size_t count = std::min(BLOCK, size_ - first);
        if (!is_all_zero(block, count)) {
            std::copy_n(block, count, memory_->numbers() + first);
        }
    }
}

void zeroed_array::let_go() noexcept {
    if (memory_ != nullptr && memory_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        std::free(memory_);
    }
    memory_ = nullptr;
}

void zeroed_array::size_as(std::size_t size) {
    let_go();
    size_ = size;
    if (size > SHARED_COUNT) {
        make();
    }
}

const double* zeroed_array::shared_zeros() {
    return all_zero;
}

}  // namespace kvt
