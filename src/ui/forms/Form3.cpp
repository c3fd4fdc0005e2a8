#include "ui/forms/Form3.hpp"

#include "app/program.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ui/parts/entry_validator.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/help_file.hpp"
#include "ui/shell/qt_text.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kvt {

namespace {

/// Sizes in pixels.
constexpr int BOX_WIDTH = 110;
constexpr int BUTTON_WIDTH = 90;
constexpr int ROW_SPACING = 5;

/// The files of the rotors as their column shows them: those that were checked stand last.
std::vector<const written_file*> rotor_files() {
    std::vector<const written_file*> files;
    for (const written_file& file : files_of(file_group::cnc)) {
        if (file.needs == file_needs::profiles) {
            files.push_back(&file);
        }
    }
    std::ranges::stable_partition(
        files, [](const written_file* file) { return !file->name.ends_with("_checked"); });
    return files;
}

QLabel* column_head(const char* name) {
    QLabel* head = named_label(name);
    QFont font = head->font();
    font.setBold(true);
    head->setFont(font);
    return head;
}

}  // namespace

Form3::Form3(form_context context, QWidget* parent)
    : dialog_form("Form3", context.kavetta, parent),
      context_(context),
      form_(open_cnc_form(context.kavetta)),
      clockwise_(named_check("Opp_Plot")),
      toolsize_(number_box("toolsize", BOX_WIDTH)),
      groovetooltext_(number_box("groovetooltext", BOX_WIDTH)),
      resolution_(new QComboBox),
      toolunits_(new QLabel),
      toolunits_groove_(new QLabel),
      groove_label_(named_label("Label5")) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(10);
    layout->addWidget(named_label("Label1"));
    layout->addLayout(lay_out_files());
    layout->addWidget(hairline());
    layout->addLayout(lay_out_entries());
    layout->addLayout(lay_out_buttons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    show_texts();
    // The units are the project's, no captions.
    toolunits_->setObjectName("toolunits");
    toolunits_groove_->setObjectName("toolunits_groove");
    toolunits_->setText(qt_text(form_.toolunits));
    toolunits_groove_->setText(qt_text(form_.toolunits));
    show_form();
    connect(&context.runner, &command_runner::ended, this, &QDialog::reject);
}

QCheckBox* Form3::file_box(const written_file& file) {
    auto* box = new QCheckBox;
    box->setObjectName(qt_text(file.control));
    connect(box, &QCheckBox::clicked, this, [this, &file](bool ticked) {
        collect();
        tick_cnc_file(context_.kavetta, form_, file, ticked);
        show_form();
    });
    files_[&file] = box;
    return box;
}

QLayout* Form3::lay_out_files() {
    auto* rotors = new QVBoxLayout;
    rotors->setSpacing(ROW_SPACING);
    rotors->addWidget(column_head("Label2"));
    for (const written_file* file : rotor_files()) {
        rotors->addWidget(file_box(*file));
    }
    auto* ports = new QVBoxLayout;
    ports->setSpacing(ROW_SPACING);
    ports->addWidget(column_head("Label3"));
    for (const written_file& file : files_of(file_group::cnc)) {
        if (file.needs != file_needs::profiles) {
            ports->addWidget(file_box(file));
        }
    }
    ports->addStretch(1);
    ports->addWidget(clockwise_);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(24);
    columns->addLayout(rotors);
    columns->addLayout(ports);
    return columns;
}

QLayout* Form3::lay_out_entries() {
    const auto refused = [this] {
        context_.person.show_status(
            message_text(message::number_refused, context_.kavetta.app_state.language));
    };
    validate_number(*toolsize_, refused);
    validate_number(*groovetooltext_, refused);
    resolution_->setObjectName("machine_res_combo");
    resolution_->setEditable(true);
    resolution_->setFixedWidth(BOX_WIDTH);
    validate_number(*resolution_->lineEdit(), refused);
    for (const std::string& item : form_.machine_res_items) {
        resolution_->addItem(qt_text(item));
    }
    resolution_->setCurrentIndex(-1);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    const auto add_row = [grid](int row, QLabel* label, QWidget* entry, QLabel* unit) {
        label->setBuddy(entry);
        grid->addWidget(label, row, 0);
        grid->addWidget(entry, row, 1);
        if (unit != nullptr) {
            grid->addWidget(unit, row, 2);
        }
    };
    add_row(0, named_label("Label8"), toolsize_, toolunits_);
    add_row(1, groove_label_, groovetooltext_, toolunits_groove_);
    add_row(2, named_label("Label4"), resolution_, nullptr);
    grid->setColumnStretch(3, 1);
    return grid;
}

QLayout* Form3::lay_out_buttons() {
    auto* ok = new QPushButton;
    ok->setObjectName("okbutton");
    ok->setDefault(true);
    auto* cancel = new QPushButton;
    cancel->setObjectName("cancelbutton");
    cancel->setAutoDefault(false);
    auto* last = new QPushButton;
    last->setObjectName("last_values");
    last->setAutoDefault(false);
    last->setEnabled(context_.kavetta.last_cnc_entries.has_value());
    connect(last, &QPushButton::clicked, this, &Form3::press_last_values);
    connect(ok, &QPushButton::clicked, this, &Form3::press_ok);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(last);
    buttons->addStretch(1);
    for (QPushButton* button : {ok, cancel}) {
        button->setMinimumWidth(BUTTON_WIDTH);
        buttons->addWidget(button);
    }
    return buttons;
}

void Form3::collect() {
    form_.ticked.clear();
    for (const auto& [file, box] : files_) {
        if (box->isChecked()) {
            form_.ticked.emplace(file->name);
        }
    }
    form_.Opp_Plot = clockwise_->isChecked();
    form_.toolsize = utf8_text(toolsize_->text());
    form_.groovetooltext = utf8_text(groovetooltext_->text());
    form_.machine_res_combo = utf8_text(resolution_->currentText());
}

void Form3::show_form() {
    for (const auto& [file, box] : files_) {
        box->setChecked(form_.ticked.contains(file->name));
    }
    clockwise_->setChecked(form_.Opp_Plot);
    resolution_->setEditText(qt_text(form_.machine_res_combo));
    toolsize_->setText(qt_text(form_.toolsize));
    groovetooltext_->setText(qt_text(form_.groovetooltext));
    for (QWidget* part :
         {static_cast<QWidget*>(groove_label_), static_cast<QWidget*>(groovetooltext_),
          static_cast<QWidget*>(toolunits_groove_)}) {
        part->setVisible(form_.groove_entry_shown);
    }
}

void Form3::press_ok() {
    collect();
    bool closes = false;
    is_pressed_ = true;
    context_.runner.act(
        [&](program& kavetta, user& person) { closes = write_cnc_files(kavetta, person, form_); });
    is_pressed_ = false;
    show_form();
    if (closes) {
        accept();
    }
}

void Form3::press_last_values() {
    use_last_cnc_entries(context_.kavetta, form_);
    show_form();
}

void Form3::refresh() {
    if (is_pressed_) {
        show_form();
    }
}

void Form3::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        context_.runner.act(open_help_file);
        return;
    }
    dialog_form::keyPressEvent(event);
}

}  // namespace kvt
