// sheet_writer: whoever brings the pages of the design sheet on paper.
#pragma once

#include "views/sheet/design_sheet.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

class sheet_writer {
  public:
    virtual ~sheet_writer() = default;

    virtual sheet_paper paper() const = 0;
    /// The bytes of a document with a title. Throws run_time_error when it can't be made.
    virtual std::string document(const std::vector<sheet_page>& pages, std::string_view title) = 0;
};

}  // namespace kvt
