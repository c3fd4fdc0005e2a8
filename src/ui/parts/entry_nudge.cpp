#include "ui/parts/entry_nudge.hpp"

#include "base/stepped_number.hpp"
#include "core/entries.hpp"
#include "core/entry_numbers.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <cmath>

namespace kvt {

namespace {

constexpr int SHIFT_STEPS = 10;
constexpr double PIXELS_A_STEP = 4.0;

/// The box of an entry that can be typed into, or nullptr.
QLineEdit* entry_box(QObject* object) {
    auto* box = qobject_cast<QLineEdit*>(object);
    const bool is_entry = box != nullptr && find_entry(utf8_text(box->objectName())) != nullptr;
    return is_entry && box->isEnabled() && !box->isReadOnly() ? box : nullptr;
}

int steps_with(Qt::KeyboardModifiers keys) {
    return keys.testFlag(Qt::ShiftModifier) ? SHIFT_STEPS : 1;
}

bool has_other_modifier(Qt::KeyboardModifiers keys) {
    return (keys & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

/// As if it were typed, so that it goes the road of typing.
void type_text(QLineEdit& box, const QString& text) {
    box.selectAll();
    box.insert(text);
}

}  // namespace

entry_nudge::entry_nudge(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool entry_nudge::eventFilter(QObject* watched, QEvent* event) {
    if (QLineEdit* box = entry_box(watched)) {
        return on_box(*box, *event);
    }
    auto* label = qobject_cast<QLabel*>(watched);
    return label != nullptr && entry_box(label->buddy()) != nullptr && on_label(*label, *event);
}

bool entry_nudge::on_box(QLineEdit& box, QEvent& event) {
    if (event.type() == QEvent::FocusOut && label_ == nullptr) {
        box_ = nullptr;
    }
    return event.type() == QEvent::KeyPress && press_key(box, static_cast<const QKeyEvent&>(event));
}

bool entry_nudge::press_key(QLineEdit& box, const QKeyEvent& event) {
    if (event.key() == Qt::Key_Escape && goes_on(box)) {
        give_back(box);
        return true;
    }
    const bool is_up = event.key() == Qt::Key_Up;
    if ((!is_up && event.key() != Qt::Key_Down) || has_other_modifier(event.modifiers())) {
        return false;
    }
    begin(box);
    step(box, now_, (is_up ? 1 : -1) * steps_with(event.modifiers()));
    return true;
}

bool entry_nudge::on_label(QLabel& label, QEvent& event) {
    switch (event.type()) {
        case QEvent::Enter:
            label.setCursor(Qt::SizeHorCursor);
            return false;
        case QEvent::MouseButtonPress:
            press_label(label, static_cast<const QMouseEvent&>(event));
            return true;
        case QEvent::MouseMove:
            drag(static_cast<const QMouseEvent&>(event));
            return true;
        case QEvent::MouseButtonRelease:
            label_ = nullptr;
            return true;
        default:
            return false;
    }
}

/// The box gets the focus, so that Esc reaches it.
void entry_nudge::press_label(QLabel& label, const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) {
        return;
    }
    auto* box = qobject_cast<QLineEdit*>(label.buddy());
    box->setFocus(Qt::MouseFocusReason);
    begin(*box);
    before_ = box->text();
    label_ = &label;
    pressed_at_ = event.globalPosition().x();
}

void entry_nudge::drag(const QMouseEvent& event) {
    if (label_ == nullptr || box_ == nullptr) {
        return;
    }
    const double pixels = event.globalPosition().x() - pressed_at_;
    const int steps = static_cast<int>(std::lround(pixels / PIXELS_A_STEP));
    step(*box_, before_, steps * steps_with(event.modifiers()));
}

bool entry_nudge::goes_on(const QLineEdit& box) const {
    return box_ == &box && box.text() == now_;
}

void entry_nudge::begin(QLineEdit& box) {
    if (!goes_on(box)) {
        box_ = &box;
        before_ = now_ = box.text();
    }
}

void entry_nudge::step(QLineEdit& box, const QString& from, int steps) {
    const bool may_be_negative = number_kind_of(utf8_text(box.objectName())) == number_kind::angle;
    const auto text = stepped_number(utf8_text(from), steps, may_be_negative);
    if (!text || qt_text(*text) == box.text()) {
        return;
    }
    type_text(box, qt_text(*text));
    now_ = box.text();
}

void entry_nudge::give_back(QLineEdit& box) {
    type_text(box, before_);
    box_ = nullptr;
    label_ = nullptr;
}

}  // namespace kvt
