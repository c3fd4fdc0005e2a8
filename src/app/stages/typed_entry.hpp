// typed_entry: one --set option, a text that the caller types into a control as a user would.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

class user;
struct program;

struct typed_entry {
    std::string control;  ///< an entry's name, dimens1, dimens2 or unittype
    std::string text;  ///< UTF-8; "0" or "1" for a check box, "1" for an option button, a list text
                       ///< for unittype
};

/// A control that can be typed into.
struct typed_control {
    std::string_view form;
    std::string_view name;
    std::vector<std::string_view> states;  ///< the texts that it takes; none when it takes any
};

/// Every such control: the units, then the entries in the order of the forms.
std::vector<typed_control> typed_controls();

/// What is wrong with a typed entry, for the caller of the program: the control does not exist
/// (near names are offered), the text is none of the control's states, or a file could not hold it.
/// Empty when it can be typed.
std::string typed_entry_problem(const typed_entry& typed);

/// Types a text without a problem and leaves the entry, so that its handler fires; a check box,
/// option button or list acts as if clicked. Throws run_time_error as the handlers do.
void type_entry(program& kavetta, user& person, const typed_entry& typed);

}  // namespace kvt
