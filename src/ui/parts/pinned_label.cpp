#include "ui/parts/pinned_label.hpp"

#include "app/trial/figures.hpp"
#include "ui/parts/accessible_names.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

namespace kvt {

namespace {

/// Between the width of a text and that of its label, pixels.
constexpr int ROOM_FOR_ROUNDING = 2;

}  // namespace

pinned_label::pinned_label(const char* form, const char* control)
    : figure_(find_figure(form, control)) {
    setObjectName(QString(control) + "_pinned");
    setFont(compact_font());
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    hide();
}

void pinned_label::show_figure(const pinned_figures* pinned, char decimal_mark) {
    const std::string text =
        pinned == nullptr ? std::string() : figure_text(*figure_, pinned->texts, decimal_mark);
    const QString heading = pinned == nullptr ? QString() : qt_text(pinned->heading);
    setText(qt_text(text));
    setToolTip(heading);
    set_accessible_description(*this, heading);
    setVisible(!text.empty());
}

void pinned_label::paintEvent(QPaintEvent*) {
    paint_faint_text(*this);
}

pinned_heading::pinned_heading() {
    setObjectName("pinned_heading");
    setFont(compact_font());
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    hide();
}

void pinned_heading::show_heading(const pinned_figures* pinned) {
    heading_ = pinned == nullptr ? QString() : qt_text(pinned->heading);
    setToolTip(heading_);
    setVisible(!heading_.isEmpty());
    updateGeometry();
    elide();
}

QSize pinned_heading::sizeHint() const {
    return {fontMetrics().horizontalAdvance(heading_) + ROOM_FOR_ROUNDING, fontMetrics().height()};
}

QSize pinned_heading::minimumSizeHint() const {
    return {1, fontMetrics().height()};
}

void pinned_heading::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    elide();
}

void pinned_heading::elide() {
    setText(fontMetrics().elidedText(heading_, Qt::ElideRight, width()));
}

void show_pinned_figures(const QWidget& below, const pinned_figures* pinned, char decimal_mark) {
    for (pinned_label* label : below.findChildren<pinned_label*>()) {
        label->show_figure(pinned, decimal_mark);
    }
    for (pinned_heading* heading : below.findChildren<pinned_heading*>()) {
        heading->show_heading(pinned);
    }
}

}  // namespace kvt
