// A DXF file around one polyline: sections, layers, vertices, end.
#pragma once

#include "core/text_file.hpp"

#include <string_view>

namespace kvt {

/// Writes the file's lines as its vertices come: the head at once, a vertex a call, the end when told.
class dxf_polyline {
  public:
    explicit dxf_polyline(text_lines& out);
    /// One vertex; x and y are the texts of its numbers.
    void vertex(std::string_view x, std::string_view y);
    void end();

  private:
    text_lines& out_;
};

}  // namespace kvt
