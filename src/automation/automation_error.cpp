#include "automation/automation_error.hpp"

#include <array>

namespace kvt::automation {

namespace {

struct error_row {
    std::uint32_t hresult;
    std::int32_t number;
};

constexpr std::array ERRORS = {
    // The program can't be reached or started.
    error_row{0x800401F3, NOT_CREATED},  // CO_E_CLASSSTRING
    error_row{0x80040154, NOT_CREATED},  // REGDB_E_CLASSNOTREG
    error_row{0x800401E3, NOT_CREATED},  // MK_E_UNAVAILABLE
    error_row{0x800401F5, NOT_CREATED},  // CO_E_APPNOTFOUND
    error_row{0x800401FE, NOT_CREATED},  // CO_E_APPDIDNTREG
    error_row{0x80080005, NOT_CREATED},  // CO_E_SERVER_EXEC_FAILURE
    error_row{0x800401EA, 432},          // MK_E_CANTOPENFILE
    error_row{0x800706BA, 462},          // RPC_S_SERVER_UNAVAILABLE
    // The call doesn't fit the member.
    error_row{0x80020006, UNKNOWN_NAME},  // DISP_E_UNKNOWNNAME
    error_row{0x80020005, WRONG_TYPE},    // DISP_E_TYPEMISMATCH
    error_row{0x8002000B, 9},             // DISP_E_BADINDEX
    error_row{0x8002000A, 6},             // DISP_E_OVERFLOW
    error_row{0x8002000E, 450},           // DISP_E_BADPARAMCOUNT
    error_row{0x8002000F, 449},           // DISP_E_PARAMNOTOPTIONAL
    error_row{0x80020007, 446},           // DISP_E_NONAMEDARGS
    error_row{0x80020004, 448},           // DISP_E_PARAMNOTFOUND
    // General ones.
    error_row{0x80070057, 5},   // E_INVALIDARG
    error_row{0x8007000E, 7},   // E_OUTOFMEMORY
    error_row{0x80070005, 70},  // E_ACCESSDENIED
};

/// Own errors of controls: their low word is the number.
constexpr std::uint32_t CONTROL_ERRORS = 0x800A0000;
constexpr std::uint32_t HIGH_WORD = 0xFFFF0000;

}  // namespace

automation_error::automation_error(std::int32_t number, std::int32_t result,
                                   const std::string& detail)
    : run_time_error(static_cast<failure>(number), detail), hresult(result) {}

std::int32_t error_number(std::int32_t hresult) {
    const auto bits = static_cast<std::uint32_t>(hresult);
    for (const error_row& row : ERRORS) {
        if (row.hresult == bits) {
            return row.number;
        }
    }
    const bool of_control = (bits & HIGH_WORD) == CONTROL_ERRORS;
    return static_cast<std::int32_t>(of_control ? bits & ~HIGH_WORD : bits);
}

automation_error error_of(std::int32_t hresult, const std::string& detail) {
    return {error_number(hresult), hresult, detail};
}

}  // namespace kvt::automation
