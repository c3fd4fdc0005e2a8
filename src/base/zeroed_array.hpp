// zeroed_array: a list of numbers, all 0 at first, that takes memory only once one of them is set.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <utility>

namespace kvt {

/// Elements 0 .. size - 1. An array that nobody wrote to is a size and nothing else; one that was
/// written to lies in memory that the system zeroes page by page, so a large array of which the
/// first part is used costs that part. A copy likewise takes what is not 0. Elements are not
/// checked: go through checked_at.
class zeroed_array {
  public:
    zeroed_array() = default;
    explicit zeroed_array(std::size_t size);

    zeroed_array(const zeroed_array& other);
    zeroed_array(zeroed_array&& other) noexcept { swap(other); }
    zeroed_array& operator=(zeroed_array other) noexcept {
        swap(other);
        return *this;
    }
    ~zeroed_array() = default;

    /// A new size, and every element this value.
    void assign(std::size_t size, double value);

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }

    double& operator[](std::size_t i) { return data()[i]; }
    const double& operator[](std::size_t i) const { return data()[i]; }

    double* data() { return numbers_ ? numbers_.get() : make(); }
    const double* data() const { return numbers_ ? numbers_.get() : shared_zeros(); }
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
        std::swap(numbers_, other.numbers_);
    }

    struct freed {
        void operator()(double* numbers) const { std::free(numbers); }
    };

    double* make();
    void size_as(std::size_t size);
    static const double* shared_zeros();

    std::size_t size_ = 0;
    std::unique_ptr<double[], freed> numbers_;  // none: all elements are 0
};

}  // namespace kvt
