#include "screenshots/desktop_palettes.hpp"

#include <QColor>

namespace kvt {

namespace {

struct scheme {
    QColor window, button, base, alternate, text, highlight, highlighted_text;
};

/// Disabled text lies a third of the way from the ground.
QColor disabled(const QColor& text, const QColor& ground) {
    const auto channel = [](int ink, int under) { return under + (ink - under) * 35 / 100; };
    return {channel(text.red(), ground.red()), channel(text.green(), ground.green()),
            channel(text.blue(), ground.blue())};
}

QPalette palette_of(const scheme& colours) {
    QPalette palette;
    palette.setColor(QPalette::Window, colours.window);
    palette.setColor(QPalette::Button, colours.button);
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.alternate);
    palette.setColor(QPalette::ToolTipBase, colours.alternate);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, colours.highlighted_text);
    palette.setColor(QPalette::Light, colours.button.lighter(150));
    palette.setColor(QPalette::Midlight, colours.button.lighter(125));
    palette.setColor(QPalette::Mid, colours.button.darker(150));
    palette.setColor(QPalette::Dark, colours.button.darker(200));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, colours.text);
        palette.setColor(QPalette::Disabled, role, disabled(colours.text, colours.window));
    }
    return palette;
}

}  // namespace

std::vector<desktop_palette> desktop_palettes() {
    const scheme breeze_light = {{239, 240, 241}, {252, 252, 252}, {255, 255, 255}, {247, 247, 247},
                                 {35, 38, 41},    {61, 174, 233},  {255, 255, 255}};
    const scheme breeze_dark = {{42, 46, 50},    {49, 54, 59},   {27, 30, 32},   {35, 38, 41},
                                {252, 252, 252}, {61, 174, 233}, {252, 252, 252}};
    const scheme adwaita_light = {{246, 245, 244}, {237, 235, 233}, {255, 255, 255},
                                  {250, 249, 248}, {46, 52, 54},    {53, 132, 228},
                                  {255, 255, 255}};
    const scheme adwaita_dark = {{53, 53, 53},    {55, 55, 55},  {45, 45, 45},   {50, 50, 50},
                                 {238, 238, 236}, {21, 83, 158}, {255, 255, 255}};
    return {{"breeze_light", palette_of(breeze_light)},
            {"breeze_dark", palette_of(breeze_dark)},
            {"adwaita_light", palette_of(adwaita_light)},
            {"adwaita_dark", palette_of(adwaita_dark)}};
}

}  // namespace kvt
