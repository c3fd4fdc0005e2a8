#include "support/environment_value.hpp"

#include "base/windows/wide_text.hpp"

#include <cstdlib>

namespace kvt {

void set_environment_variable(const std::string& name, const std::optional<std::string>& value) {
    _wputenv_s(wide_of_utf8(name).c_str(), wide_of_utf8(value.value_or("")).c_str());
}

}  // namespace kvt
