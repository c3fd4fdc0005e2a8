// clock: the date and time that files and reports carry; a test can stop it.
#pragma once

#include <chrono>

namespace kvt {

class clock {
  public:
    virtual ~clock() = default;
    virtual std::chrono::system_clock::time_point now() const = 0;
};

class system_clock : public clock {
  public:
    std::chrono::system_clock::time_point now() const override {
        return std::chrono::system_clock::now();
    }
};

}  // namespace kvt
