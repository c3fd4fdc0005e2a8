#include "automation/connect.hpp"

#include "automation/automation_error.hpp"

namespace kvt::automation {

namespace {

object_ref running_program(host& programs, std::string_view class_name) {
    try {
        return programs.running(class_name);
    } catch (const automation_error&) {
        return nullptr;
    }
}

}  // namespace

object_ref connect(host& programs, std::string_view class_name) {
    const object_ref found = running_program(programs, class_name);
    return found != nullptr ? found : programs.create(class_name);
}

}  // namespace kvt::automation
