#include "ui/forms/Form2.hpp"

#include "app/desk/program_title.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/parts/example_picture.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace kvt {

namespace {

/// Sizes in pixels.
constexpr int TEXT_WIDTH = 320;
constexpr int BUTTON_WIDTH = 110;
constexpr int PICTURE_SIZE = 56;
constexpr int EXAMPLE_SIZE = 112;

}  // namespace

Form2::Form2(const program& kavetta, const std::vector<delivered_example>& examples,
             QWidget* parent)
    : dialog_form("Form2", kavetta, parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(18);
    layout->addLayout(question_row());
    layout->addLayout(button_row());
    if (!examples.empty()) {
        layout->addWidget(named_label("examples"));
        layout->addLayout(example_row(examples));
    }
    layout->setSizeConstraint(QLayout::SetFixedSize);
    show_texts();
    show_own_texts(examples);
}

/// What stands in no table of texts: the picture, and the names of the examples.
void Form2::show_own_texts(const std::vector<delivered_example>& examples) {
    picture_->setAccessibleName(qt_text(PROGRAM_NAME));
    picture_->setPixmap(program_icon().pixmap(PICTURE_SIZE, PICTURE_SIZE));
    for (std::size_t i = 0; i < examples.size(); ++i) {
        QToolButton* button = example_buttons_[i];
        button->setText(qt_text(examples[i].name));
        button->setToolTip(QString());
        button->setAccessibleName(button->text());
    }
}

QHBoxLayout* Form2::question_row() {
    picture_ = new QLabel;
    QLabel* question = named_label("Label1");
    question->setWordWrap(true);
    question->setMinimumWidth(TEXT_WIDTH);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(picture_);
    row->addWidget(question, 1);
    return row;
}

QHBoxLayout* Form2::button_row() {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    for (const auto& [name, choice] : {std::pair("new", start_choice::new_project),
                                       std::pair("open", start_choice::open_project)}) {
        auto* button = new QPushButton;
        button->setObjectName(name);
        button->setMinimumWidth(BUTTON_WIDTH);
        button->setDefault(choice == start_choice::new_project);
        connect(button, &QPushButton::clicked, this, [this, answered = choice] {
            choose({answered, {}});
        });
        row->addWidget(button);
    }
    return row;
}

QHBoxLayout* Form2::example_row(const std::vector<delivered_example>& examples) {
    auto* row = new QHBoxLayout;
    for (const delivered_example& example : examples) {
        example_buttons_.push_back(example_button(example));
        row->addWidget(example_buttons_.back());
    }
    row->addStretch(1);
    return row;
}

QToolButton* Form2::example_button(const delivered_example& example) {
    auto* button = new QToolButton;
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIconSize({EXAMPLE_SIZE, EXAMPLE_SIZE});
    button->setIcon(example_picture(example.path, EXAMPLE_SIZE, devicePixelRatioF()));
    connect(button, &QToolButton::clicked, this, [this, path = example.path] {
        choose({start_choice::example, path});
    });
    return button;
}

void Form2::choose(start_answer chosen) {
    chosen_ = std::move(chosen);
    accept();
}

}  // namespace kvt
