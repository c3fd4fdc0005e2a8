// host: where the application objects of other programs come from.
#pragma once

#include "automation/value.hpp"

#include <string_view>

namespace kvt::automation {

/// A class name is that of the registry: "excel.application", in either case of letters.
class host {
  public:
    virtual ~host() = default;

    /// The application object of a running program; null when none runs.
    virtual object_ref running(std::string_view class_name) = 0;
    /// That of a new one. Throws automation_error 429 when the program can't be started.
    virtual object_ref create(std::string_view class_name) = 0;
};

}  // namespace kvt::automation
