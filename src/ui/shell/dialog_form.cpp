#include "ui/shell/dialog_form.hpp"

#include "ui/parts/accessible_names.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAbstractButton>
#include <QLabel>

namespace kvt {

dialog_form::dialog_form(const char* form, const program& kavetta, QWidget* parent)
    : QDialog(parent), kavetta_(kavetta), form_(form) {
    setObjectName(form);
    setModal(true);
}

void dialog_form::show_texts() {
    setWindowTitle(caption_of(kavetta_, form_, ""));
    for (QWidget* control : findChildren<QWidget*>()) {
        const std::string name = utf8_text(control->objectName());
        const QString caption = caption_of(kavetta_, form_, name);
        if (auto* label = qobject_cast<QLabel*>(control)) {
            label->setText(caption);
        } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
            button->setText(caption);
        }
        control->setToolTip(tooltip_of(kavetta_, form_, name));
    }
}

void dialog_form::showEvent(QShowEvent* event) {
    give_accessible_names(kavetta_, form_, *this);
    QDialog::showEvent(event);
}

}  // namespace kvt
