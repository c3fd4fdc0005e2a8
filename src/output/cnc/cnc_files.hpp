// The table of the CNC files: their names, their tick boxes, their writers.
#pragma once

#include "base/text_file.hpp"
#include "output/file_source.hpp"
#include "output/port_contours.hpp"

#include <optional>
#include <span>
#include <string_view>

namespace kvt {

struct cnc_file {
    std::string_view name;      ///< "inner_xy"; row of its texts, and its file name without ".cnc"
    std::string_view checkbox;  ///< on Form3
    void (*write)(const file_source& source, text_lines& text);
    bool needs_tool = false;
    std::optional<port_side> port;  ///< the port it needs
};

/// Every file in the order in which the ticked ones are written.
std::span<const cnc_file> cnc_files();

/// The row under a name, or nullptr.
const cnc_file* find_cnc_file(std::string_view name);

/// Indexes of cnc_files that rules name.
inline constexpr std::size_t INNER_OFFSET = 1, INNER_OFFSET_CHECKED = 2, OUTER_OFFSET = 5,
                             INLET_POCKET = 9, OUTLET_POCKET = 12, CNC_FILE_COUNT = 14;

}  // namespace kvt
