#include "ui/forms/Form2.hpp"

#include "app/desk/program_title.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kvt {

namespace {

/// Sizes in pixels.
constexpr int TEXT_WIDTH = 320;
constexpr int BUTTON_WIDTH = 110;
constexpr int PICTURE_SIZE = 56;

}  // namespace

Form2::Form2(const program& kavetta, QWidget* parent) : dialog_form("Form2", kavetta, parent) {
    auto* picture = new QLabel;
    QLabel* question = named_label("Label1");
    question->setWordWrap(true);
    question->setMinimumWidth(TEXT_WIDTH);
    auto* new_button = new QPushButton;
    new_button->setObjectName("new");
    auto* open_button = new QPushButton;
    open_button->setObjectName("open");
    new_button->setDefault(true);
    connect(new_button, &QPushButton::clicked, this, [this] { choose(start_choice::new_project); });
    connect(open_button, &QPushButton::clicked, this,
            [this] { choose(start_choice::open_project); });

    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(picture);
    top->addWidget(question, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {new_button, open_button}) {
        button->setMinimumWidth(BUTTON_WIDTH);
        buttons->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(18);
    layout->addLayout(top);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    show_texts();
    picture->setAccessibleName(qt_text(PROGRAM_NAME));
    picture->setPixmap(program_icon().pixmap(PICTURE_SIZE, PICTURE_SIZE));
}

void Form2::choose(start_choice choice) {
    choice_ = choice;
    accept();
}

}  // namespace kvt
