#include "ui/forms/fontfrm.hpp"

#include "base/number_text.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kvt {

namespace {

constexpr double DEFAULT_POINTS = 8.0;
constexpr int BOX_WIDTH = 60;

enum class main_window_controls { changed, kept };

/// Every control of every form. The menu bar and the status bar are the main window's own controls.
void set_control_fonts(const QFont& font, main_window_controls own) {
    for (QWidget* form : QApplication::topLevelWidgets()) {
        const bool is_main_window = qobject_cast<QMainWindow*>(form) != nullptr;
        for (QWidget* control : form->findChildren<QWidget*>()) {
            const bool is_own = is_main_window && control->parentWidget() == form;
            if (!is_own || own == main_window_controls::changed) {
                control->setFont(font);
            }
        }
    }
}

}  // namespace

fontfrm::fontfrm(const program& kavetta, QWidget* parent)
    : dialog_form("fontfrm", kavetta, parent),
      text1_(number_box("Text1", BOX_WIDTH)),
      fntarial_(new QRadioButton),
      fntsansserif_(new QRadioButton) {
    fntarial_->setObjectName("fntarial");
    fntsansserif_->setObjectName("fntsansserif");
    QLabel* label = named_label("Label1");
    label->setBuddy(text1_);
    QPushButton* ok = command_button("chngfntOK");
    QPushButton* cancel = command_button("chngfntcancel");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &fontfrm::change_font);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* size = new QHBoxLayout;
    size->addWidget(label);
    size->addWidget(text1_);
    size->addStretch(1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->addWidget(fntarial_);
    layout->addWidget(fntsansserif_);
    layout->addLayout(size);
    layout->addSpacing(10);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    show_texts();
}

/// A letter has some height, so a size of 0 or less counts as the default too.
double fontfrm::size_points() const {
    const double size = val(utf8_text(text1_->text()));
    return size > 0.0 ? size : DEFAULT_POINTS;
}

void fontfrm::change_font() {
    QFont font;
    font.setPointSizeF(size_points());
    if (fntsansserif_->isChecked()) {
        font.setFamily(fntsansserif_->text());
        set_control_fonts(font, main_window_controls::changed);
    } else if (fntarial_->isChecked()) {
        font.setFamily(fntarial_->text());
        set_control_fonts(font, main_window_controls::kept);
    }
    accept();
}

}  // namespace kvt
