#include "ui/shell/loaded_form.hpp"

#include <QCloseEvent>
#include <QKeyEvent>

namespace kvt {

loaded_form::loaded_form(const char* form, form_context context) : mdi_form(form, context) {
    setAttribute(Qt::WA_DeleteOnClose);
}

QRect loaded_form::start_place(const QRect& area) const {
    QRect place(QPoint(0, 0), start_size().boundedTo(area.size()));
    place.moveCenter(area.center());
    return place;
}

void loaded_form::closeEvent(QCloseEvent* event) {
    unload();
    // Until the event loop deletes it, nobody shall find the closed form.
    setObjectName(QString());
    event->accept();
}

void loaded_form::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        mdi_form::keyPressEvent(event);
    }
}

}  // namespace kvt
