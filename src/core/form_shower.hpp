// form_shower: brings the forms of the table of forms to the screen and takes them off it.
#pragma once

#include <string_view>

namespace kvt {

class form_shower {
  public:
    virtual ~form_shower() = default;

    virtual void show_form(std::string_view form) = 0;
    /// Closes and forgets a form; nothing happens when it is not open.
    virtual void unload_form(std::string_view form) = 0;
};

}  // namespace kvt
