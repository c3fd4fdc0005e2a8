#include "ui/parts/ink.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// Lightness below which a ground counts as dark, 0 .. 255.
constexpr int DARK_BELOW = 128;

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mix(const QColor& ground, const QColor& ink, double share) {
    const auto channel = [share](float from, float to) {
        return static_cast<float>(from + (to - from) * share);
    };
    return QColor::fromRgbF(channel(ground.redF(), ink.redF()),
                            channel(ground.greenF(), ink.greenF()),
                            channel(ground.blueF(), ink.blueF()));
}

}  // namespace

QColor qt_colour(const rgb_colour& colour) {
    return {colour.red, colour.green, colour.blue};
}

bool is_dark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < DARK_BELOW;
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor ink_on(const QColor& ground, const QColor& wanted) {
    if (contrast(ground, wanted) >= READABLE_CONTRAST) {
        return wanted;
    }
    return contrast(ground, Qt::white) > contrast(ground, Qt::black) ? Qt::white : Qt::black;
}

QColor faint_ink(const QColor& ground, const QColor& ink) {
    for (int tenths = 5; tenths < 10; ++tenths) {
        const QColor faint = mix(ground, ink, tenths / 10.0);
        if (contrast(ground, faint) >= READABLE_CONTRAST) {
            return faint;
        }
    }
    return ink;
}

}  // namespace kvt
