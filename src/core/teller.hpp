// teller: what a formula needs of the person on the other side: say why, and point at the entry.
#pragma once

#include <string_view>

namespace kvt {

class teller {
  public:
    virtual ~teller() = default;

    /// A modal message with an OK button. The boxes on the screen are refreshed before it appears.
    virtual void show_message(std::string_view text) = 0;
    /// The focus goes to the control of this name.
    virtual void set_focus(std::string_view control) = 0;
};

}  // namespace kvt
