// object: a thing inside another program, whose members are called by name.
#pragma once

#include "automation/value.hpp"

#include <string_view>

namespace kvt::automation {

/// A name is written as its program spells it, arguments in their order. Every call throws
/// automation_error with the number of the failure: 438 unknown name, 13 an argument of the wrong
/// type, 450 their count, otherwise the other program's own.
class object {
  public:
    virtual ~object() = default;

    /// The value of a property, or the result of a function.
    virtual value get(std::string_view name, values arguments = {}) = 0;
    /// A procedure: no result is asked for.
    virtual void run(std::string_view name, values arguments = {}) = 0;
    virtual void put(std::string_view name, value new_value) = 0;
};

}  // namespace kvt::automation
