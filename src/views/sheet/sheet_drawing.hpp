// sheet_drawing: an explanation drawing to scale on a page, with a value beside each of its
// dimension lines. Names stand in columns at both sides, so they never cover the drawing or each
// other, however small the pump.
#pragma once

#include "views/explanation.hpp"
#include "views/sheet/sheet_page.hpp"

#include <functional>
#include <string>

namespace kvt {

/// What stands at a dimension line: the name, and below it the value.
struct dimension_text {
    std::string name;
    std::string value;  ///< with its unit; empty for a name alone
};
using dimension_texts = std::function<dimension_text(const explained_parameter&)>;

struct drawing_place {
    sheet_box area;             ///< of the drawing with its columns
    double column_width = 0.0;  ///< of the names at each side; 0 for a drawing with none there
    double scale = 1.0;         ///< millimetres on paper for one of the pump
};

/// The largest of the scales of technical drawings that is not above `largest`: 50, 20, 10, 5, 2.5,
/// 2, 1.5, 1, then 1:1.5, 1:2, 1:2.5, 1:5, 1:10 and the tenfolds of these.
double standard_scale(double largest);
/// "2:1", "1:2.5"
std::string scale_text(double scale);

/// The drawing in the middle of its area.
void add_drawing(sheet_page& page, const explanation& drawing, const drawing_place& place,
                 const dimension_texts& texts, const sheet_metrics& metrics);

}  // namespace kvt
