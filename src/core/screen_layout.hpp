// screen_layout: screen.ini, the windows' places as blocks of a heading, four numbers in twips and
// an empty line.
#pragma once

#include "core/window_rectangles.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// The name of the layout file in the program's folder.
inline constexpr const char* LAYOUT_FILE_NAME = "screen.ini";

/// The bytes of the layout file for the windows as they are on the screen at this moment: the five
/// fixed blocks, then a block for each optional window that has a rectangle. Numbers are
/// single-precision ones in their print form (" 8085 "). Throws overflow for a number that isn't
/// finite.
std::string write_layout(const window_rectangles& windows);

/// What a reading leaves beside the rectangles.
struct layout_reading {
    bool failed = false;        ///< the file was no layout; the built-in sizes stand
    bool explain = false;       ///< explain was touched and so is open
    bool port_explain = false;  ///< likewise
};

/// Reads the blocks into the rectangles, each number as it comes. Headings of the fixed blocks are
/// not looked at; a number is a whole text, of a chart one that fits 16 bits. At the end of the
/// file the main window is maximised; lines behind the last block leave it normal. A number that
/// doesn't convert, or a missing line, leads to the built-in sizes: Form1 then keeps the Top and
/// Left read so far, the other four get their whole rectangles, the main window is maximised;
/// rectangles of explanation windows and charts read before stay. Kept: behind every optional block
/// but the last a further heading is wanted, so a file that ends with such a block, as written for
/// a main window that is not maximised, gives the built-in sizes. screen_layout_test holds it.
layout_reading read_layout(std::string_view bytes, window_rectangles& rectangles);

/// The sizes after a failed reading, also of a file that isn't there.
void set_sizes_after_failure(window_rectangles& rectangles);

}  // namespace kvt
