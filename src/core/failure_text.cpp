// The rows of the text table that name the run-time failures.
#include "core/failure_text.hpp"

#include "core/text_table.hpp"

namespace kvt {

namespace {

message message_of(failure kind) {
    switch (kind) {
        case failure::invalid_procedure_call:
            return message::failure_invalid_procedure_call;
        case failure::overflow:
            return message::failure_overflow;
        case failure::subscript_out_of_range:
            return message::failure_subscript_out_of_range;
        case failure::division_by_zero:
            return message::failure_division_by_zero;
        case failure::type_mismatch:
            return message::failure_type_mismatch;
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
    }
    return message::failure_invalid_procedure_call;
}

}  // namespace

std::string_view failure_text(failure kind, std::int16_t language) {
    return message_text(message_of(kind), language);
}

}  // namespace kvt
