#include "screenshots/form_pictures.hpp"

#include "core/user.hpp"
#include "ui/forms/Aboutform.hpp"
#include "ui/forms/Form2.hpp"
#include "ui/forms/fontfrm.hpp"
#include "ui/forms/graphview2.hpp"
#include "ui/forms/newprojectname.hpp"
#include "ui/forms/progressfrm.hpp"
#include "ui/shell/splashform.hpp"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QWindow>

namespace kvt {

namespace {

constexpr int HALF_WAY = 50;  ///< percent
constexpr QSize STUDY_SIZE(1000, 640);

QPixmap picture_of(QDialog& dialog) {
    dialog.setModal(false);
    dialog.show();
    staged_program::settle();
    const QPixmap picture = dialog.grab();
    dialog.hide();
    return picture;
}

void vary(QWidget& study, const char* entry, const char* values) {
    auto* entries = study.findChild<QComboBox*>("study_entry");
    entries->setCurrentIndex(entries->findData(entry));
    study.findChild<QPushButton*>("add_variable")->click();
    auto* variables = study.findChild<QTableWidget*>("variables");
    variables->item(variables->rowCount() - 1, 1)->setText(values);
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

form_pictures pictures_of_study(staged_program& stage) {
    stage.runner().act([](program&, user& person) { person.show_form("study_form"); });
    staged_program::settle();
    auto* study = stage.window().findChild<QMdiSubWindow*>("study_form");
    study->resize(STUDY_SIZE);
    vary(*study, "ecc", "2.2:2.8:0.02");
    vary(*study, "thick", "10:14:0.5");
    study->findChild<QLineEdit*>("study_aims")->setText("ripple:min; capacity:max");
    auto* run = study->findChild<QPushButton*>("run_study");
    run->click();
    staged_program::await([run] { return run->isEnabled(); });
    study->findChild<QTableView*>("study_table")->selectRow(2);
    form_pictures pictures;
    staged_program::settle();
    pictures["study_form"] = study->grab();
    auto* colour = study->findChild<QComboBox*>("chart_colour");
    colour->setCurrentIndex(colour->findText("thick", Qt::MatchStartsWith));
    study->findChild<QTabWidget*>("study_tabs")->setCurrentIndex(1);
    staged_program::settle();
    pictures["study_chart"] = study->grab();
    study->close();
    staged_program::settle();
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
