// The rows of the text table that name the run-time failures.
#include "core/failure_text.hpp"

#include "core/text_table.hpp"

#include <system_error>

namespace kvt {

namespace {

message message_of(failure kind) {
    switch (kind) {
        case failure::invalid_procedure_call:
            return message::failure_invalid_procedure_call;
        case failure::overflow:
            return message::failure_overflow;
        case failure::out_of_memory:
            return message::failure_out_of_memory;
        case failure::subscript_out_of_range:
            return message::failure_subscript_out_of_range;
        case failure::division_by_zero:
            return message::failure_division_by_zero;
        case failure::type_mismatch:
            return message::failure_type_mismatch;
        case failure::bad_file_name:
            return message::failure_bad_file_name;
        case failure::file_not_found:
            return message::failure_file_not_found;
        case failure::input_past_end:
            return message::failure_input_past_end;
        case failure::path_file_access:
            return message::failure_path_file_access;
        case failure::path_not_found:
            return message::failure_path_not_found;
        case failure::invalid_property_value:
            return message::failure_invalid_property_value;
        case failure::no_connection:
            return message::failure_no_connection;
        case failure::request_failed:
            return message::failure_request_failed;
        case failure::request_timed_out:
            return message::failure_request_timed_out;
    }
    return message::failure_invalid_procedure_call;
}

}  // namespace

std::string_view failure_text(failure kind, std::int16_t language) {
    return message_text(message_of(kind), language);
}

std::string reason_text(const run_time_error& error, std::int16_t language) {
    const file_fault fault = error.fault();
    switch (fault.why) {
        case file_fault::reason::system:
            return std::generic_category().message(fault.system_error);
        case file_fault::reason::too_large:
            return std::string(message_text(message::file_too_large, language));
        case file_fault::reason::not_plain:
            return std::string(message_text(message::file_not_plain, language));
        case file_fault::reason::unknown:
            break;
    }
    return {};
}

std::string failure_text(const run_time_error& error, std::int16_t language) {
    const std::string text(failure_text(error.kind(), language));
    const std::string reason = reason_text(error, language);
    return reason.empty() ? text : text + " (" + reason + ")";
}

}  // namespace kvt
