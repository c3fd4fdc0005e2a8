#include "ui/forms/Form4.hpp"

#include "app/models/solid_models.hpp"
#include "cad/dispatch.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/help_file.hpp"
#include "ui/shell/qt_text.hpp"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kvt {

namespace {

/// Sizes in pixels.
constexpr int BUTTON_WIDTH = 90;
constexpr int ROW_SPACING = 6;
constexpr int NOTE_WIDTH = 300;

QLayout* options(std::string_view code) {
    auto* layout = new QVBoxLayout;
    layout->setSpacing(ROW_SPACING);
    for (const model_package& package : model_packages()) {
        auto* option = new QRadioButton;
        option->setObjectName(qt_text(package.option_button));
        option->setChecked(package.code == code);
        layout->addWidget(option);
    }
    return layout;
}

/// Says under the options what comes of the choice where no package can be driven.
QLabel* note() {
    QLabel* label = named_label("Label2");
    label->setWordWrap(true);
    label->setMinimumWidth(NOTE_WIDTH);
    return label;
}

}  // namespace

Form4::Form4(const program& kavetta, progress_shower& person, std::string_view code,
             QWidget* parent)
    : dialog_form("Form4", kavetta, parent), person_(person) {
    auto* ok = new QPushButton;
    ok->setObjectName("Command1");
    ok->setDefault(true);
    ok->setMinimumWidth(BUTTON_WIDTH);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 14);
    layout->setSpacing(12);
    layout->addWidget(named_label("Label1"));
    layout->addLayout(options(code));
    if (models_are_built_here(kavetta)) {
        layout->addWidget(note());
    }
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    show_texts();
}

std::optional<std::string> Form4::code() const {
    for (const model_package& package : model_packages()) {
        const auto* option = findChild<QRadioButton*>(qt_text(package.option_button));
        if (option->isChecked()) {
            return std::string(package.code);
        }
    }
    return std::nullopt;
}

void Form4::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        show_help_file(kavetta_, person_);
        return;
    }
    dialog_form::keyPressEvent(event);
}

}  // namespace kvt
