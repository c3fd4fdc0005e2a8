// no_host: a system on which no other program can be driven.
#pragma once

#include "automation/host.hpp"

#include <string_view>

namespace kvt::automation {

class no_host : public host {
  public:
    /// Null.
    object_ref running(std::string_view class_name) override;
    /// Throws automation_error 429.
    object_ref create(std::string_view class_name) override;
};

}  // namespace kvt::automation
