#include "core/window_rectangles.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace kvt {

namespace {

std::size_t index_of(std::string_view form) {
    const form_row* row = find_form(form);
    assert(row != nullptr && "every window is a row of the table of forms");
    return static_cast<std::size_t>(row - form_rows().data());
}

/// A title row, and the part of it that is needed to drag a window: 40 by 10 pixels.
constexpr float TITLE_HEIGHT = 450.0F;
constexpr float GRIP_WIDTH = 600.0F;
constexpr float GRIP_HEIGHT = 150.0F;
/// Coordinates of a window system have 16 bits.
constexpr float MOST_PIXELS = 32767.0F;

float overlap(float first, float first_length, float second, float second_length) {
    return std::min(first + first_length, second + second_length) - std::max(first, second);
}

/// A window smaller than the grip is needed as a whole.
bool can_be_dragged(const window_rectangle& window, const window_rectangle& screen) {
    return overlap(window.left, window.width, screen.left, screen.width) >=
               std::min(GRIP_WIDTH, window.width) &&
           overlap(window.top, TITLE_HEIGHT, screen.top, screen.height) >= GRIP_HEIGHT;
}

/// How far a place lies outside a stretch; 0 inside.
float distance(float place, float start, float length) {
    return std::max({0.0F, start - place, place - (start + length)});
}

float distance(const window_rectangle& window, const window_rectangle& screen) {
    return distance(window.left, screen.left, screen.width) +
           distance(window.top, screen.top, screen.height);
}

/// The place of a window that lies wholly inside the stretch, its beginning where both don't fit.
float inside(float place, float window_length, float start, float length) {
    return std::max(start, std::min(place, start + length - window_length));
}

}  // namespace

window_rectangle built_in_area() {
    window_rectangle area;
    for (const form_row& form : fixed_child_rows()) {
        area.height = std::max(area.height, form.rectangle.top + form.rectangle.height);
        area.width = std::max(area.width, form.rectangle.left + form.rectangle.width);
    }
    return area;
}

int pixels_of(float twips) {
    const float pixels = twips / static_cast<float>(TWIPS_PER_PIXEL);
    return static_cast<int>(std::lround(std::clamp(pixels, -MOST_PIXELS, MOST_PIXELS)));
}

window_rectangle moved_onto(const window_rectangle& window,
                            std::span<const window_rectangle> screens) {
    const auto shows = [&](const window_rectangle& screen) {
        return can_be_dragged(window, screen);
    };
    if (screens.empty() || std::ranges::any_of(screens, shows)) {
        return window;
    }
    const window_rectangle& nearest = *std::ranges::min_element(
        screens, {}, [&](const window_rectangle& screen) { return distance(window, screen); });
    window_rectangle moved = window;
    moved.left = inside(window.left, window.width, nearest.left, nearest.width);
    moved.top = inside(window.top, window.height, nearest.top, nearest.height);
    return moved;
}

window_rectangles::window_rectangles() {
    for (const form_row& form : fixed_child_rows()) {
        of(form.name) = form.rectangle;
    }
}

std::optional<window_rectangle>& window_rectangles::of(std::string_view form) {
    return places_[index_of(form)];
}

const std::optional<window_rectangle>& window_rectangles::of(std::string_view form) const {
    return places_[index_of(form)];
}

}  // namespace kvt
