// The texts of the run-time failures and the text for developers that the exception carries.
#include "core/run_time_error.hpp"

namespace kvt {

const char* failure_text(failure kind) {
    switch (kind) {
        case failure::invalid_procedure_call:
            return "Invalid procedure call or argument";
        case failure::overflow:
            return "Overflow";
        case failure::subscript_out_of_range:
            return "Subscript out of range";
        case failure::division_by_zero:
            return "Division by zero";
        case failure::type_mismatch:
            return "Type mismatch";
        case failure::file_not_found:
            return "File not found";
        case failure::input_past_end:
            return "Input past end of file";
        case failure::path_file_access:
            return "Path/File access error";
        case failure::path_not_found:
            return "Path not found";
        case failure::invalid_property_value:
            return "Invalid property value";
    }
    return "Unknown failure";
}

run_time_error::run_time_error(failure kind, const std::string& detail)
    : std::runtime_error(detail.empty() ? failure_text(kind) : failure_text(kind) + (": " + detail)), kind_(kind) {}

}  // namespace kvt
