#include "ui/form_parts.hpp"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kvt {

namespace {

/// Room above and below the text of a box together, pixels.
constexpr int BOX_MARGINS = 6;

}  // namespace

QLabel* named_label(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    return label;
}

QLabel* result_label(const char* name) {
    QLabel* label = named_label(name);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFocusPolicy(Qt::NoFocus);
    return label;
}

void accent(QPushButton& button) {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Button, palette.color(QPalette::Highlight));
    palette.setColor(QPalette::ButtonText, palette.color(QPalette::HighlightedText));
    button.setPalette(palette);
}

QLineEdit* number_box(const char* name, int width) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setFixedWidth(width);
    box->setFixedHeight(box->fontMetrics().height() + BOX_MARGINS);
    box->setAlignment(Qt::AlignRight);
    return box;
}

QFrame* hairline() {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    line->setFixedHeight(5);
    return line;
}

}  // namespace kvt
