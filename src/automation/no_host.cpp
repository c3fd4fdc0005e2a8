#include "automation/no_host.hpp"

#include "automation/automation_error.hpp"

#include <string>

namespace kvt::automation {

namespace {

/// REGDB_E_CLASSNOTREG: no program is registered under the name.
constexpr std::int32_t CLASS_NOT_REGISTERED = -2147221164;

}  // namespace

object_ref no_host::running(std::string_view) {
    return nullptr;
}

object_ref no_host::create(std::string_view class_name) {
    throw error_of(CLASS_NOT_REGISTERED, std::string(class_name));
}

}  // namespace kvt::automation
