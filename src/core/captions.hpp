// captions: the captions that the controls show at the moment, as data that the caption routines
// set.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace kvt {

struct text_row;

/// At start every control has its design-time caption (the English text of its row in the text
/// table). A caption is always a text of the table, so nothing is copied.
class captions {
  public:
    /// Caption of a control ("" as control: the form's own caption); empty for a control without
    /// one.
    std::string_view of(std::string_view form, std::string_view control) const;
    /// The control of a caption row of the table shows that row's text in a language.
    void set(const text_row& row, std::int16_t language);

  private:
    std::vector<std::string_view> texts_;  ///< as caption_rows; empty until the first change
};

}  // namespace kvt
