#include "ui/shell/present_layout.hpp"

#include "ui/forms/graphview2.hpp"
#include "ui/shell/mdi_form.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>

#include <array>
#include <vector>

namespace kvt {

namespace {

float twips(int pixels) {
    return static_cast<float>(pixels) * TWIPS_PER_PIXEL;
}

window_rectangle rectangle_of(const QRect& place) {
    return {twips(place.height()), twips(place.width()), twips(place.top()), twips(place.left())};
}

/// Nothing for a window that is not loaded.
std::optional<window_rectangle> child_rectangle(const QMainWindow& window, std::string_view name) {
    const auto* form = window.findChild<mdi_form*>(qt_text(name));
    return form == nullptr ? std::nullopt : std::optional(rectangle_of(form->normal_place()));
}

std::optional<window_rectangle> chart_rectangle(std::string_view name) {
    const graphview2* chart = open_chart(name);
    return chart == nullptr ? std::nullopt : std::optional(chart->place());
}

std::optional<window_rectangle> rectangle_of(const QMainWindow& window, const form_row& form) {
    switch (form.kind) {
        case form_kind::child:
            return child_rectangle(window, form.name);
        case form_kind::main_window:
            return window.isMaximized() || window.isMinimized() || window.isFullScreen()
                       ? std::nullopt
                       : std::optional(rectangle_of(QRect(window.pos(), window.size())));
        case form_kind::window:
            return chart_rectangle(form.name);
        case form_kind::dialog:
            break;
    }
    return std::nullopt;
}

}  // namespace

window_rectangles present_layout(const QMainWindow& window) {
    window_rectangles windows;
    for (const form_row& form : form_rows()) {
        if (!form.heading.empty()) {
            windows.of(form.name) = rectangle_of(window, form);
        }
    }
    return windows;
}

void place_window(QWidget& window, const window_rectangle& stored) {
    std::vector<window_rectangle> screens;
    for (const QScreen* screen : QGuiApplication::screens()) {
        screens.push_back(rectangle_of(screen->availableGeometry()));
    }
    const window_rectangle rectangle = moved_onto(stored, screens);
    window.move(pixels_of(rectangle.left), pixels_of(rectangle.top));
    window.resize(pixels_of(rectangle.width), pixels_of(rectangle.height));
}

window_rectangle child_place(const window_rectangle& rectangle) {
    // The main window may reach over all screens; its children stand from its corner on. A smaller
    // one scrolls to the built-in layout, which stays as it is on every screen.
    const window_rectangle built_in = built_in_area();
    window_rectangle area = rectangle_of(QGuiApplication::primaryScreen()->virtualGeometry());
    area.top = area.left = 0.0F;
    area.height = std::max(area.height, built_in.height);
    area.width = std::max(area.width, built_in.width);
    return moved_onto(rectangle, std::array{area});
}

}  // namespace kvt
