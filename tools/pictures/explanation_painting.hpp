// Paints an explanation drawing: outlines, dimension lines with their arrows, and the names of the
// parameters.
#pragma once

#include "views/explanation.hpp"

#include <QImage>
#include <QRectF>

#include <cstdint>
#include <string>
#include <vector>

namespace kvt {

/// A painted text and where it stands, pixels.
struct painted_text {
    std::string text;
    QRectF place;
};

struct painted_explanation {
    QImage picture;
    std::vector<painted_text> texts;
};

/// The picture of a drawing, so many pixels wide, with the captions of a language.
painted_explanation paint_explanation(const explanation& drawing, int width, std::int16_t language);

/// What is wrong with the texts: two that overlap, one that leaves the picture. Empty when they can
/// all be read.
std::vector<std::string> unreadable_texts(const painted_explanation& painted);

}  // namespace kvt
