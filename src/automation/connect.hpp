// connect: the application object of another program, wherever it comes from.
#pragma once

#include "automation/host.hpp"

#include <string_view>

namespace kvt::automation {

/// That of the running program; when none runs, or it can't be reached, that of a new one. Throws
/// the error of create.
object_ref connect(host& programs, std::string_view class_name);

}  // namespace kvt::automation
