#include "support/environment_value.hpp"

#include <cstdlib>

namespace kvt {

void set_environment_variable(const std::string& name, const std::optional<std::string>& value) {
    value ? ::setenv(name.c_str(), value->c_str(), 1) : ::unsetenv(name.c_str());
}

}  // namespace kvt
