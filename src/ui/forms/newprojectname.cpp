#include "ui/forms/newprojectname.hpp"

#include "ui/parts/entry_validator.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace kvt {

newprojectname::newprojectname(const program& kavetta, QWidget* parent,
                               const std::function<void()>& refused)
    : dialog_form("newprojectname", kavetta, parent), name_(new QLineEdit) {
    name_->setObjectName("txtprojectname");
    name_->setMinimumWidth(260);
    validate_entry(*name_, refused);
    QLabel* label = named_label("lblLabels");
    label->setBuddy(name_);
    auto* ok = new QPushButton;
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    auto* cancel = new QPushButton;
    cancel->setObjectName("cmdCancel");
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->addWidget(label);
    layout->addWidget(name_);
    layout->addSpacing(10);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    show_texts();
}

std::string newprojectname::name() const {
    return utf8_text(name_->text());
}

}  // namespace kvt
