// zeroed_array: a list of numbers, all 0 at first, that takes memory only once one of them is set,
// and shares it with its copies until one of those is written to.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <utility>

namespace kvt {

/// Elements 0 .. size - 1. An array that nobody wrote to is a size and nothing else; one that was
/// written to knows how far, and only so much is zeroed when its memory is used again, so a large
/// array of which the first part is used costs that part. A copy is a reference; the first access
/// to either that may write parts them, which likewise takes what is not 0. So a reference to an
/// element that may be written to holds until the array is copied. Copies may belong to different
/// threads. Elements are not checked: go through checked_at.
class zeroed_array {
  public:
    zeroed_array() = default;
    explicit zeroed_array(std::size_t size);

    zeroed_array(const zeroed_array& other) noexcept;
    zeroed_array(zeroed_array&& other) noexcept { swap(other); }
    zeroed_array& operator=(zeroed_array other) noexcept {
        swap(other);
        return *this;
    }
    ~zeroed_array() { let_go(); }

    /// A new size, and every element this value.
    void assign(std::size_t size, double value);

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }

    double& operator[](std::size_t i) {
        double* const numbers = is_own() ? memory_->numbers() : make_own();
        memory_->used = std::max(memory_->used, i + 1);
        return numbers[i];
    }
    const double& operator[](std::size_t i) const { return data()[i]; }

    double* data();
    const double* data() const { return memory_ != nullptr ? memory_->numbers() : shared_zeros(); }
    double* begin() { return data(); }
    double* end() { return data() + size_; }
    const double* begin() const { return data(); }
    const double* end() const { return data() + size_; }

    friend bool operator==(const zeroed_array& a, const zeroed_array& b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

  private:
    void swap(zeroed_array& other) noexcept {
        std::swap(size_, other.size_);
        std::swap(memory_, other.memory_);
    }

    friend class array_store;

    /// The numbers stand behind it; from number `used` on they are 0.
    struct alignas(16) shared_memory {
        std::atomic<std::size_t> owners;
        std::size_t used;

        double* numbers() { return reinterpret_cast<double*>(this + 1); }
    };

    /// Whether nobody else sees what is written. What another thread that was an owner has read
    /// comes before.
    bool is_own() const {
        return memory_ != nullptr && memory_->owners.load(std::memory_order_acquire) == 1;
    }
    double* make_own();
    void make();
    void let_go() noexcept;
    void size_as(std::size_t size);
    static const double* shared_zeros();

    std::size_t size_ = 0;
    shared_memory* memory_ = nullptr;  // none: all elements are 0
};

}  // namespace kvt
