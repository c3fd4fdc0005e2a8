#include "ui/parts/text_font.hpp"

#include <QStringList>

namespace kvt {

QFont text_font() {
    QFont font(QStringList{"Liberation Sans", "Arial"});
    font.setStyleHint(QFont::SansSerif);
    return font;
}

}  // namespace kvt
