#include "screenshots/form_pictures.hpp"

#include "ui/forms/Aboutform.hpp"
#include "ui/forms/Form2.hpp"
#include "ui/forms/fontfrm.hpp"
#include "ui/forms/graphview2.hpp"
#include "ui/forms/newprojectname.hpp"
#include "ui/forms/progressfrm.hpp"
#include "ui/shell/splashform.hpp"

#include <QApplication>
#include <QMdiSubWindow>
#include <QWindow>

namespace kvt {

namespace {

constexpr int HALF_WAY = 50;  ///< percent

QPixmap picture_of(QDialog& dialog) {
    dialog.setModal(false);
    dialog.show();
    staged_program::settle();
    const QPixmap picture = dialog.grab();
    dialog.hide();
    return picture;
}

}  // namespace

form_pictures pictures_of_children(MDIForm1& window) {
    form_pictures pictures;
    for (QMdiSubWindow* form : window.findChildren<QMdiSubWindow*>()) {
        if (form->isVisible()) {
            form->raise();
            staged_program::settle();
            pictures[form->objectName()] = form->grab();
        }
    }
    return pictures;
}

form_pictures pictures_of_charts() {
    form_pictures pictures;
    for (const chart_row& row : chart_rows()) {
        if (graphview2* chart = open_chart(row.form)) {
            pictures[chart->objectName()] = chart->grab();
        }
    }
    return pictures;
}

form_pictures pictures_of_dialogs(const program& kavetta) {
    Form2 prompt(kavetta, delivered_examples(kavetta.folder / "projects"), nullptr);
    newprojectname name(kavetta, nullptr, [] {});
    Aboutform about(kavetta, nullptr);
    fontfrm font(kavetta, nullptr);
    progressfrm progress(kavetta, nullptr);
    progress.show_progress(QString(), HALF_WAY);
    form_pictures pictures;
    for (QDialog* dialog :
         std::initializer_list<QDialog*>{&prompt, &name, &about, &font, &progress}) {
        pictures[dialog->objectName()] = picture_of(*dialog);
    }
    splashform splash;
    pictures["splashform"] = splash.grab();
    return pictures;
}

}  // namespace kvt
