// A small structural reader of DXF files for tests: group codes, sections, one polyline.
#pragma once

#include "geometry/point2.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

struct dxf_content {
    std::vector<std::string> sections;  ///< "HEADER", "TABLES", "BLOCKS", "ENTITIES"
    std::vector<std::string> layers;
    int polylines = 0;
    std::vector<point2> vertices;
    std::vector<std::string> number_texts;  ///< x and y of every vertex as they stand
};

/// Reads groups as a receiving program does: pairs of lines, each code a whole number behind one
/// blank. Throws std::runtime_error for a line without CR LF, a code that is none, a section or a
/// polyline that is not ended, a vertex outside a polyline or without x, y and z, an entity on a
/// layer that no table names, anything behind EOF.
dxf_content read_dxf(std::string_view bytes);

}  // namespace kvt
