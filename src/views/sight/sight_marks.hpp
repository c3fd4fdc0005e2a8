// sight_marks: arrow heads, dimension lines and texts of the Design view, in pixels of its box.
#pragma once

#include "views/sight/sight_drawing.hpp"
#include "views/sight/view_box.hpp"

#include <optional>
#include <string>

namespace kvt {

inline constexpr double ARROW_PIXELS = 9.0;

/// An arrow head whose tip lies at a point, coming from another; nothing for one and the same.
void add_arrow(const point2& tip, const point2& from, sight_ink ink, sight_drawing& drawing);

/// A dimension line: an arrow at both ends, between the ends where both have room there, else from
/// outside with tails.
void add_measured_line(const point2& from, const point2& to, sight_ink ink, sight_drawing& drawing);

/// A text round a middle, moved into the box; nothing where the middle lies far outside of it.
std::optional<sight_text> text_round(const point2& middle, const std::string& text, sight_ink ink,
                                     const view_box& box, const sight_metrics& metrics);
void add_text(const point2& middle, const std::string& text, sight_ink ink, const view_box& box,
              const sight_metrics& metrics, sight_drawing& drawing);

/// Whether two texts lie over each other.
bool overlap(const sight_text& a, const sight_text& b);

}  // namespace kvt
