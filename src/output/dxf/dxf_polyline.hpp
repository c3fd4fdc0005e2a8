// A DXF file around one polyline: sections, layers, vertices, end.
// Source: docs/file-formats.md, "DXF files (`.dxf`)".
#pragma once

#include "base/text_file.hpp"

#include <cstddef>
#include <string_view>

namespace kvt {

/// Writes the file's lines as its vertices come: the head at once, a vertex a call, the end when
/// told.
class dxf_polyline {
  public:
    /// vertex_count is a hint of how much text will come.
    dxf_polyline(text_lines& out, std::size_t vertex_count);
    /// One vertex; x and y are the texts of its numbers.
    void vertex(std::string_view x, std::string_view y);
    void end();

  private:
    text_lines& out_;
};

}  // namespace kvt
