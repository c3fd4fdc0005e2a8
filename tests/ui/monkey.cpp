#include "ui/monkey.hpp"

#include "base/path_text.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QWheelEvent>

namespace kvt {

namespace {

constexpr int LOOK_MS = 1;
constexpr int DRAG_STEPS = 4;

/// Characters that people type into boxes for numbers, and some that they should not.
constexpr std::string_view LETTERS = "0123456789012345678901234567890123456789..,-+eE xyz%&\"'/*";

struct key_stroke {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

const std::vector<key_stroke>& key_strokes() {
    static const std::vector<key_stroke> STROKES = {
        {Qt::Key_Tab},
        {Qt::Key_Tab},
        {Qt::Key_Backtab, Qt::ShiftModifier},
        {Qt::Key_Return},
        {Qt::Key_Enter},
        {Qt::Key_Escape},
        {Qt::Key_Space},
        {Qt::Key_Left},
        {Qt::Key_Right},
        {Qt::Key_Up},
        {Qt::Key_Down},
        {Qt::Key_Home},
        {Qt::Key_End},
        {Qt::Key_PageUp},
        {Qt::Key_PageDown},
        {Qt::Key_Backspace},
        {Qt::Key_Delete},
        {Qt::Key_A, Qt::ControlModifier},
        {Qt::Key_F1},
        {Qt::Key_F6},
        {Qt::Key_Z, Qt::ControlModifier},
        {Qt::Key_Alt},
        {Qt::Key_Insert},
        {Qt::Key_V, Qt::ControlModifier},
        {Qt::Key_F10},
        {Qt::Key_C, Qt::ControlModifier},
    };
    return STROKES;
}

}  // namespace

monkey_answers::monkey_answers(random_values& random, std::vector<std::string> projects,
                               std::filesystem::path saved)
    : random_(random), projects_(std::move(projects)), saved_(std::move(saved)) {
    look_again();
}

/// A new timer each time: one whose slot is still at work does not fire in a nested dialog.
void monkey_answers::look_again() {
    QTimer::singleShot(LOOK_MS, this, &monkey_answers::look);
}

void monkey_answers::look() {
    look_again();
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        if (dialog->isVisible()) {
            ++answered;
            answer(*dialog);
        }
        return;
    }
    // A list or a menu that stays open would swallow all that follows.
    QWidget* popup = QApplication::activePopupWidget();
    if (popup != nullptr && popup == popup_) {
        popup->close();
    }
    popup_ = popup;
}

void monkey_answers::answer(QDialog& dialog) {
    if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        answer_box(*box);
        return;
    }
    if (auto* file = qobject_cast<QFileDialog*>(&dialog)) {
        answer_file(*file);
        return;
    }
    for (QLineEdit* box : dialog.findChildren<QLineEdit*>()) {
        box->setText(qt_text(random_.text("pump 1_", 9)));
    }
    const QList<QAbstractButton*> buttons = dialog.findChildren<QAbstractButton*>();
    const int chosen = random_.whole(0, static_cast<int>(buttons.size()));
    if (chosen == buttons.size() || !buttons[chosen]->isEnabled()) {
        dialog.reject();
    } else {
        QTest::mouseClick(buttons[chosen], Qt::LeftButton);
    }
}

void monkey_answers::answer_box(QMessageBox& box) {
    const QList<QAbstractButton*> buttons = box.buttons();
    const int chosen = random_.whole(0, static_cast<int>(buttons.size()));
    if (chosen == buttons.size()) {
        QTest::keyClick(&box, Qt::Key_Escape);
    } else {
        QTest::mouseClick(buttons[chosen], Qt::LeftButton);
    }
}

void monkey_answers::answer_file(QFileDialog& dialog) {
    if (random_.whole(0, 4) == 0) {
        dialog.reject();
        return;
    }
    const bool saving = dialog.acceptMode() == QFileDialog::AcceptSave;
    const std::size_t chosen =
        static_cast<std::size_t>(random_.whole(0, static_cast<int>(projects_.size()) - 1));
    const std::string saved =
        utf8_of_path(saved_ / ("saved" + std::to_string(random_.whole(0, 2)) + ".KVT"));
    dialog.selectFile(qt_text(saving ? saved : projects_[chosen]));
    QMetaObject::invokeMethod(&dialog, "accept");
    // A file that isn't there keeps the dialog open behind a message of its own.
    if (dialog.isVisible()) {
        dialog.reject();
    }
}

monkey::monkey(random_values& random, desktop& on_screen) : random_(random), desktop_(on_screen) {}

void monkey::act() {
    struct habit {
        const char* name;
        void (monkey::*action)();
        int weight;
    };
    static constexpr habit HABITS[] = {
        {"click", &monkey::click, 30},
        {"type", &monkey::type, 28},
        {"key", &monkey::press_key, 18},
        {"drag", &monkey::drag, 8},
        {"wheel", &monkey::turn_wheel, 4},
        {"resize", &monkey::resize, 3},
        {"menu", &monkey::choose_menu, 6},
        {"language or unit", &monkey::switch_language_or_unit, 3},
    };
    int number = random_.whole(0, 99);
    for (const habit& habit : HABITS) {
        if (number < habit.weight) {
            ++sent_[habit.name];
            (this->*habit.action)();
            break;
        }
        number -= habit.weight;
    }
    QCoreApplication::processEvents();
}

/// A widget of the main window that can be seen and used.
QWidget* monkey::any_control() {
    std::vector<QWidget*> controls;
    for (QWidget* widget : desktop_.window().findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled() && !widget->isWindow()) {
            controls.push_back(widget);
        }
    }
    return controls.empty() ? &desktop_.window() : any(controls);
}

QPoint monkey::any_place(const QWidget& widget) {
    return {random_.whole(0, std::max(0, widget.width() - 1)),
            random_.whole(0, std::max(0, widget.height() - 1))};
}

void monkey::click() {
    static const std::vector<Qt::MouseButton> BUTTONS = {Qt::LeftButton,  Qt::LeftButton,
                                                         Qt::LeftButton,  Qt::LeftButton,
                                                         Qt::RightButton, Qt::MiddleButton};
    QWidget* widget = any_control();
    const QPoint place = any_place(*widget);
    if (random_.whole(0, 9) == 0) {
        QTest::mouseDClick(widget, Qt::LeftButton, Qt::NoModifier, place);
    } else {
        QTest::mouseClick(widget, any(BUTTONS), Qt::NoModifier, place);
    }
}

void monkey::type() {
    std::vector<QLineEdit*> boxes;
    for (QLineEdit* box : desktop_.window().findChildren<QLineEdit*>()) {
        if (box->isVisible() && box->isEnabled()) {
            boxes.push_back(box);
        }
    }
    if (boxes.empty()) {
        return;
    }
    const QPointer<QLineEdit> box = any(boxes);
    box->setFocus(Qt::MouseFocusReason);
    if (random_.whole(0, 1) == 0) {
        box->selectAll();
    }
    for (const char letter : random_.text(LETTERS, 4)) {
        if (box != nullptr) {
            QTest::keyClick(box, letter);
        }
    }
}

void monkey::press_key() {
    QWidget* focus = QApplication::focusWidget();
    const key_stroke stroke = any(key_strokes());
    QTest::keyClick(focus == nullptr ? &desktop_.window() : focus, stroke.key, stroke.modifiers);
}

void monkey::drag() {
    auto* picture = desktop_.window().findChild<QWidget*>("Picture1");
    const QPointer<QWidget> widget =
        picture != nullptr && random_.whole(0, 1) == 0 ? picture : any_control();
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, any_place(*widget));
    for (int step = 0; step < DRAG_STEPS && widget != nullptr; ++step) {
        QTest::mouseMove(
            widget, any_place(*widget) + QPoint(random_.whole(-20, 20), random_.whole(-20, 20)));
    }
    if (widget != nullptr) {
        QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, any_place(*widget));
    }
}

void monkey::turn_wheel() {
    QWidget* widget = any_control();
    const QPoint place = any_place(*widget);
    QWheelEvent wheel(place, widget->mapToGlobal(place), {}, {0, random_.whole(-3, 3) * 120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
}

void monkey::resize() {
    std::vector<QWidget*> windows{&desktop_.window()};
    for (QMdiSubWindow* form : desktop_.window().findChildren<QMdiSubWindow*>()) {
        windows.push_back(form);
    }
    QWidget* window = any(windows);
    window->resize(random_.whole(60, 1100), random_.whole(60, 900));
}

void monkey::choose_menu() {
    std::vector<QAction*> entries;
    for (QAction* entry : desktop_.window().findChildren<QAction*>()) {
        const bool is_ours = entry->objectName().startsWith("mnu") ||
                             entry->parent()->objectName() == "viewpopupmenu";
        // Exit is left to the test: it would end most runs.
        if (is_ours && entry->isEnabled() && entry->isVisible() && entry->menu() == nullptr &&
            entry->objectName() != "mnufileexit") {
            entries.push_back(entry);
        }
    }
    if (!entries.empty()) {
        any(entries)->trigger();
    }
}

void monkey::switch_language_or_unit() {
    static const std::vector<const char*> CONTROLS = {"Image1", "Image2", "dimens1", "dimens2",
                                                      "Des_assist_check"};
    if (auto* control = desktop_.window().findChild<QWidget*>(any(CONTROLS))) {
        QTest::mouseClick(control, Qt::LeftButton);
    }
}

}  // namespace kvt
