// automation_error: a call of another program failed.
#pragma once

#include "base/run_time_error.hpp"

#include <cstdint>
#include <string>

namespace kvt::automation {

/// Numbers of failed calls that our own code names.
inline constexpr std::int32_t WRONG_TYPE = 13;
inline constexpr std::int32_t NO_OBJECT = 91;
inline constexpr std::int32_t NOT_CREATED = 429;
inline constexpr std::int32_t UNKNOWN_NAME = 438;
inline constexpr std::int32_t AUTOMATION_FAILED = 440;

/// number() is what a script of the other program would show; hresult what the call answered.
struct automation_error : run_time_error {
    automation_error(std::int32_t number, std::int32_t hresult, const std::string& detail = "");

    std::int32_t hresult;
};

/// The number under which a call's result is shown: 438 for an unknown name, 13 for a wrong type,
/// 429 for a class that can't be created and so on; the low word of a control's own error
/// (0x800Axxxx); any other result itself.
std::int32_t error_number(std::int32_t hresult);

/// The error of a call that answered hresult; detail is for developers.
automation_error error_of(std::int32_t hresult, const std::string& detail = "");

}  // namespace kvt::automation
