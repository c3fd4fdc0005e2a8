// descriptor: an open file of the system that is closed when its owner goes.
#pragma once

#include <unistd.h>
#include <utility>

namespace kvt {

/// Owns a file descriptor; negative: none.
class descriptor {
  public:
    explicit descriptor(int number = -1) : number_(number) {}
    ~descriptor() { static_cast<void>(close()); }
    descriptor(descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    descriptor& operator=(descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    descriptor(const descriptor&) = delete;
    descriptor& operator=(const descriptor&) = delete;

    bool is_open() const { return number_ >= 0; }
    int number() const { return number_; }
    /// False when the system reports a late failure of a write.
    bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

  private:
    int number_;
};

}  // namespace kvt
