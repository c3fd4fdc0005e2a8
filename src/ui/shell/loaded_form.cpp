#include "ui/shell/loaded_form.hpp"

#include "ui/forms/explain.hpp"
#include "ui/forms/perf_res.hpp"

#include <QCloseEvent>
#include <QKeyEvent>

namespace kvt {

loaded_form::loaded_form(const char* form, form_context context) : mdi_form(form, context) {
    setAttribute(Qt::WA_DeleteOnClose);
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

loaded_form* load_form(std::string_view form, form_context context) {
    if (form == "perf_res") {
        return new perf_res(context);
    }
    if (form == "explain") {
        return new explain(context);
    }
    if (form == "port_explain") {
        return new port_explain(context);
    }
    return nullptr;
}

}  // namespace kvt
