// captions: the captions that the controls show at the moment, as data that the caption routines
// set.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace kvt {

/// At start every control has its design-time caption (the English text of its row in the text
/// table).
class captions {
  public:
    captions();

    /// Caption of a control ("" as control: the form's own caption); empty for a control without
    /// one.
    const std::string& of(std::string_view form, std::string_view control) const;
    void set(std::string_view form, std::string_view control, std::string_view text);

  private:
    std::map<std::pair<std::string, std::string>, std::string, std::less<>> texts_;
};

}  // namespace kvt
