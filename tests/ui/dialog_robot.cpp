#include "ui/dialog_robot.hpp"

#include "ui/shell/qt_text.hpp"
#include "ui/typing.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QTest>

namespace kvt {

namespace {

/// Set while a test looks at a file dialog; it may let events happen.
constexpr auto LOOKED_AT = "looked_at";

template <typename value>
value next(std::deque<value>& script) {
    value first = script.front();
    script.pop_front();
    return first;
}

void press(QDialog& dialog, const char* button) {
    QTest::mouseClick(dialog.findChild<QAbstractButton*>(button), Qt::LeftButton);
}

}  // namespace

dialog_robot::dialog_robot() {
    look_again();
}

/// A new timer each time: one whose slot is still at work does not fire in a nested dialog.
void dialog_robot::look_again() {
    QTimer::singleShot(2, this, &dialog_robot::look);
}

void dialog_robot::look() {
    look_again();
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible() || dialog->property(LOOKED_AT).toBool()) {
        return;
    }
    // A message box has no name.
    if (!left_open.empty() && utf8_text(dialog->objectName()) == left_open) {
        return;
    }
    if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
        answer_box(*box);
    } else if (auto* file = qobject_cast<QFileDialog*>(dialog)) {
        answer_file(*file);
    } else if (auto* print = qobject_cast<QPrintDialog*>(dialog)) {
        answer_print(*print);
    } else {
        answer_other(*dialog);
    }
}

void dialog_robot::answer_failure(QMessageBox& box) {
    messages.push_back(utf8_text(box.text()));
    default_buttons.push_back(utf8_text(box.defaultButton()->text()));
    const QString wanted =
        failure_answers.empty() ? box.escapeButton()->text() : qt_text(next(failure_answers));
    for (QAbstractButton* button : box.buttons()) {
        if (button->text() == wanted) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QTest::keyClick(&box, Qt::Key_Escape);
}

void dialog_robot::answer_box(QMessageBox& box) {
    if (box.objectName() == "failure") {
        answer_failure(box);
        return;
    }
    if (box.buttons().size() == 1) {
        messages.push_back(utf8_text(box.text()));
        if (at_message) {
            at_message();
        }
        QTest::mouseClick(box.buttons().constFirst(), Qt::LeftButton);
        return;
    }
    questions.push_back(utf8_text(box.text()));
    const QString wanted = answers.empty() ? QString() : qt_text(next(answers));
    for (QAbstractButton* button : box.buttons()) {
        if (button->text() == wanted) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    surprises.push_back(utf8_text(box.text()));
    be_surprised(box);
}

void dialog_robot::answer_file(QFileDialog& dialog) {
    titles.push_back(utf8_text(dialog.windowTitle()));
    if (at_file_dialog) {
        dialog.setProperty(LOOKED_AT, true);
        at_file_dialog(dialog);
        dialog.setProperty(LOOKED_AT, false);
    }
    if (files.empty()) {
        be_surprised(dialog);
        return;
    }
    if (const std::optional<std::string> path = next(files)) {
        dialog.selectFile(qt_text(*path));
        QMetaObject::invokeMethod(&dialog, "accept");
    } else {
        dialog.reject();
    }
}

void dialog_robot::answer_print(QPrintDialog& dialog) {
    auto* file = dialog.findChild<QLineEdit*>("filename");
    proposed_prints.push_back(utf8_text(file->text()));
    if (prints.empty()) {
        be_surprised(dialog);
        return;
    }
    const std::optional<std::string> path = next(prints);
    if (!path) {
        dialog.reject();
        return;
    }
    file->setText(qt_text(*path));
    QMetaObject::invokeMethod(&dialog, "accept");
}

void dialog_robot::answer_other(QDialog& dialog) {
    if (dialog.objectName() == "newprojectname" && !names.empty()) {
        if (at_name) {
            at_name();
        }
        const std::optional<std::string> name = next(names);
        type_keys(dialog.findChild<QLineEdit*>("txtprojectname"), qt_text(name.value_or("")));
        press(dialog, name ? "cmdOK" : "cmdCancel");
    } else if (dialog.objectName() == "Form4" && at_package) {
        at_package(dialog);
    } else if (dialog.objectName() == "Form2" && !prompts.empty()) {
        if (at_prompt) {
            at_prompt();
        }
        const std::string button = next(prompts);
        if (button.empty()) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
        } else {
            press(dialog, button.c_str());
        }
    } else {
        be_surprised(dialog);
    }
}

void dialog_robot::be_surprised(QDialog& dialog) {
    surprises.push_back(utf8_text(dialog.objectName() + " " + dialog.windowTitle()));
    dialog.reject();
}

}  // namespace kvt
