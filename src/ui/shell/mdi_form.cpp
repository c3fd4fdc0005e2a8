#include "ui/shell/mdi_form.hpp"

#include "app/program.hpp"
#include "core/window_rectangles.hpp"
#include "ui/parts/accessible_names.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/parts/pinned_label.hpp"
#include "ui/parts/trial_label.hpp"
#include "ui/shell/qt_text.hpp"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

namespace kvt {

namespace {

/// A check box, an option button and a flag choose; Enter belongs to the main button there.
bool acts(const QAbstractButton& button) {
    return qobject_cast<const QPushButton*>(&button) != nullptr ||
           qobject_cast<const QToolButton*>(&button) != nullptr;
}

}  // namespace

mdi_form::mdi_form(const char* form, form_context context) : context_(context), form_(form) {
    setObjectName(form);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    setWindowIcon(program_icon());
}

void mdi_form::bind(QWidget* content, bool scrolls) {
    if (scrolls) {
        auto* area = new QScrollArea;
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setWidget(content);
        area->setFocusPolicy(Qt::NoFocus);
        setWidget(area);
    } else {
        setWidget(content);
    }
    binding_.emplace(context_, form_, *content);
}

void mdi_form::refresh() {
    setWindowTitle(caption_of(context_.kavetta, form_, ""));
    binding_->refresh();
}

void mdi_form::name_controls() {
    give_accessible_names(context_.kavetta, form_, *this);
}

void mdi_form::show_trial(const trial_figures* trial) {
    show_trial_figures(*this, context_.kavetta.labels, trial, context_.kavetta.decimal_mark);
}

void mdi_form::show_pinned(const pinned_figures* pinned) {
    show_pinned_figures(*this, pinned, context_.kavetta.decimal_mark);
}

void mdi_form::place(const window_rectangle& rectangle) {
    if (isMaximized() || isMinimized() || isShaded()) {
        setWindowState(Qt::WindowNoState);
    }
    setGeometry(pixels_of(rectangle.left), pixels_of(rectangle.top), pixels_of(rectangle.width),
                pixels_of(rectangle.height));
}

void mdi_form::moveEvent(QMoveEvent* event) {
    QMdiSubWindow::moveEvent(event);
    note_place();
}

void mdi_form::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    note_place();
}

void mdi_form::note_place() {
    if (!isMaximized() && !isMinimized() && !isShaded()) {
        normal_place_ = geometry();
    }
}

void mdi_form::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
}

void mdi_form::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QMdiSubWindow::keyPressEvent(event);
        return;
    }
    auto* focused = qobject_cast<QAbstractButton*>(focusWidget());
    const bool is_pressed_itself = focused != nullptr && focused->hasFocus() && acts(*focused);
    QAbstractButton* pressed = is_pressed_itself ? focused : main_button_;
    if (pressed != nullptr) {
        pressed->click();
    }
}

}  // namespace kvt
