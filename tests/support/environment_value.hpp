// environment_value: an environment variable of the test's own.
#pragma once

#include "base/environment.hpp"

#include <optional>
#include <string>

namespace kvt {

/// Nothing takes the variable away. An empty text does so too on Windows.
void set_environment_variable(const std::string& name, const std::optional<std::string>& value);

/// An environment variable that has its old value again when its owner goes.
class environment_value {
  public:
    environment_value(const std::string& name, const std::optional<std::string>& value)
        : name_(name), old_(environment_variable(name.c_str())) {
        set(value);
    }
    ~environment_value() { set(old_); }
    environment_value(const environment_value&) = delete;
    environment_value& operator=(const environment_value&) = delete;

    void set(const std::optional<std::string>& value) { set_environment_variable(name_, value); }

  private:
    std::string name_;
    std::optional<std::string> old_;
};

}  // namespace kvt
