#include "ui/forms/Aboutform.hpp"

#include "app/desk/program_title.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace kvt {

Aboutform::Aboutform(const program& kavetta, QWidget* parent)
    : dialog_form("Aboutform", kavetta, parent) {
    auto* picture = new QLabel;
    auto* name = new QLabel;
    QFont heading = name->font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.5);
    name->setFont(heading);
    QLabel* version = named_label("lblVersion");
    auto* ok = new QPushButton;
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(20, 20, 20, 14);
    layout->setHorizontalSpacing(16);
    layout->addWidget(picture, 0, 0, 2, 1);
    layout->addWidget(name, 0, 1, 1, 2);
    layout->addWidget(version, 1, 1, 1, 2);
    layout->setRowMinimumHeight(2, 16);
    layout->addWidget(ok, 3, 2);
    layout->setColumnMinimumWidth(1, 170);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    show_texts();
    picture->setAccessibleName(qt_text(PROGRAM_NAME));
    picture->setPixmap(program_icon().pixmap(64, 64));
    name->setText(qt_text(PROGRAM_NAME));
    setWindowTitle(windowTitle() + qt_text(MAJOR_VERSION));
    version->setText(version->text() + qt_text(FULL_VERSION));
}

}  // namespace kvt
