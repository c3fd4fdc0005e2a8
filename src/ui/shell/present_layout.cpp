#include "ui/shell/present_layout.hpp"

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

std::optional<window_rectangle> chart_rectangle_of(std::string_view name) {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == qt_text(name) && window->isVisible()) {
            return rectangle_of(QRect(window->pos(), window->size()));
        }
    }
    return std::nullopt;
}

}  // namespace

present_windows present_layout(const QMainWindow& window) {
    const auto fixed = [&window](const char* name) {
        return child_rectangle(window, name).value_or(window_rectangle());
    };
    present_windows windows;
    windows.Form1 = fixed("Form1");
    windows.portdes = fixed("portdes");
    windows.viewwinfrm = fixed("viewwinfrm");
    windows.Perffrm = fixed("Perffrm");
    windows.select_graphs = fixed("select_graphs");
    windows.explain = child_rectangle(window, "explain");
    windows.port_explain = child_rectangle(window, "port_explain");
    if (!window.isMaximized() && !window.isMinimized() && !window.isFullScreen()) {
        windows.MDIForm1 = rectangle_of(QRect(window.pos(), window.size()));
    }
    for (std::size_t chart = 0; chart < windows.charts.size(); ++chart) {
        windows.charts.at(chart) = chart_rectangle_of(chart_rectangle_fields()[chart].name);
    }
    return windows;
}

void place_main_window(QMainWindow& window, const window_rectangle& stored) {
    std::vector<window_rectangle> screens;
    for (const QScreen* screen : QGuiApplication::screens()) {
        screens.push_back(rectangle_of(screen->availableGeometry()));
    }
    const window_rectangle rectangle = moved_onto(stored, screens);
    window.move(pixels_of(rectangle.left), pixels_of(rectangle.top));
    window.resize(pixels_of(rectangle.width), pixels_of(rectangle.height));
}

window_rectangle child_place(const window_rectangle& rectangle) {
    // The main window may reach over all screens; its children stand from its corner on.
    const QSize all = QGuiApplication::primaryScreen()->virtualSize();
    return moved_onto(rectangle, std::array{rectangle_of(QRect(QPoint(0, 0), all))});
}

}  // namespace kvt
