// svg_page: what a painter paints as an SVG file, curves and texts that stay curves and texts.
#pragma once

#include <QSize>
#include <QString>

#include <functional>
#include <string>

class QPainter;

namespace kvt {

/// A drawing of a size in pixels as the bytes of an SVG file, UTF-8. Each line, surface, text and
/// picture is an element with its own colours; a polyline lists its points as "x,y x,y". What lies
/// beyond the size is left to the viewer, which doesn't show it. Clips within it and patterns are
/// ignored: a brush is its colour.
std::string svg_of(const QSize& size, const QString& title,
                   const std::function<void(QPainter&)>& paint_all);

}  // namespace kvt
