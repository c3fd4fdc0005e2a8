// window_rectangles: where the windows stand, by form, as the layout file holds it.
#pragma once

#include "core/form_table.hpp"

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace kvt {

class window_rectangles {
  public:
    /// The built-in layout: the fixed child windows at their places of the table, no other window.
    window_rectangles();

    /// The rectangle of a form of the table. Nothing for a window that is not there, or that has no
    /// stored place; a chart takes its place of the table for each number that is 0.
    std::optional<window_rectangle>& of(std::string_view form);
    const std::optional<window_rectangle>& of(std::string_view form) const;

    bool main_window_maximised = true;

    friend bool operator==(const window_rectangles&, const window_rectangles&) = default;

  private:
    std::array<std::optional<window_rectangle>, FORM_COUNT> places_;
};

/// What the fixed child windows take up at their built-in places, from the corner of the area on.
window_rectangle built_in_area();

/// The nearest whole pixel, half away from zero, held within what a window can have.
int pixels_of(float twips);

/// The rectangle, moved into the nearest screen when no piece of its title row, wide enough to be
/// dragged, would stand on any of the screens; else as it is. Without screens it stays.
window_rectangle moved_onto(const window_rectangle& window,
                            std::span<const window_rectangle> screens);

}  // namespace kvt
