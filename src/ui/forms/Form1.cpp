#include "ui/forms/Form1.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "core/capacity_unit.hpp"
#include "core/entry_names.hpp"
#include "ui/forms/assist_area.hpp"
#include "ui/parts/accessible_role.hpp"
#include "ui/parts/differing_sign.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/parts/language_flag.hpp"
#include "ui/parts/pinned_label.hpp"
#include "ui/parts/trial_label.hpp"
#include "ui/shell/qt_text.hpp"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <vector>

namespace kvt {

namespace {

struct entry_row {
    const char* entry;
    bool is_length;
};

/// The entries below the requirement in reading order; a group is set off by a hairline.
const std::vector<std::vector<entry_row>>& entry_groups() {
    static const std::vector<std::vector<entry_row>> groups = {
        // The rotor pair.
        {{"numlobes", false},
         {"ecc", true},
         {"radinnroot", true},
         {"radouter", true},
         {"outer_root", true},
         {"fillet", true},
         {"thick", true}},
        // Limits that the pair must keep.
        {{"shaftdiameter", true}, {"minmaterial", true}, {"maxdiameter", true}},
        // Clearances.
        {{"clearn", true}, {"axial_clear", true}, {"radial_clear", true}},
        // The drawing.
        {{"coarseness", false}},
    };
    return groups;
}

/// Room between the controls, pixels: close enough that the form fits its place in the default
/// layout.
constexpr int ROW_SPACING = 1;
constexpr int GROUP_SPACING = 4;
/// Between a result, its trial and the pinned one.
constexpr int RESULT_SPACING = 3;
constexpr int MARGIN = 6;
constexpr int ENTRY_WIDTH = 92;

}  // namespace

Form1::Form1(form_context context) : mdi_form("Form1", context) {
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(MARGIN, GROUP_SPACING, MARGIN, GROUP_SPACING);
    layout->setSpacing(GROUP_SPACING);
    add_header(*layout);
    add_requirement(*layout);
    add_entries(*layout);
    add_buttons(*layout);
    add_results(*layout);
    layout->addStretch(1);
    bind(content, true);
    set_main_button(calc_);
    connect_commands();
}

void Form1::add_header(QVBoxLayout& layout) {
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(named_label("Label14"));
    dimens_ = new QButtonGroup(this);
    for (const length_unit& unit : length_units()) {
        auto* button = new QRadioButton;
        button->setObjectName(qt_text(unit.option_button));
        button->setFocusPolicy(Qt::TabFocus);
        dimens_->addButton(button, unit.code);
        row->addWidget(button);
    }
    image1_ = new language_flag("Image1", flag_kind::english);
    image2_ = new language_flag("Image2", flag_kind::german);
    row->addStretch(1);
    row->addWidget(named_label("Label16"));
    row->addWidget(image1_);
    row->addWidget(image2_);
    layout.addLayout(row);
}

void Form1::add_requirement(QVBoxLayout& layout) {
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    QLineEdit* required = number_box("volumereqd", ENTRY_WIDTH - 24);
    QLabel* label = named_label(entry_label("volumereqd"));
    label->setBuddy(required);
    unittype_ = new QComboBox;
    unittype_->setObjectName("unittype");
    unittype_->setFocusPolicy(Qt::TabFocus);
    for (const capacity_unit& unit : capacity_units()) {
        unittype_->addItem(qt_text(unit.list_text));
    }
    row->addWidget(label, 1);
    row->addWidget(required);
    row->addWidget(unittype_);
    assist_ = new assist_area(context_, row);
    layout.addWidget(assist_);
}

void Form1::add_entries(QVBoxLayout& layout) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(ROW_SPACING);
    grid->setColumnStretch(0, 1);
    for (const std::vector<entry_row>& group : entry_groups()) {
        grid->addWidget(hairline(), grid->rowCount(), 0, 1, 3);
        for (const entry_row& row : group) {
            add_entry(*grid, row.entry, row.is_length);
        }
    }
    layout.addLayout(grid);
}

void Form1::add_entry(QGridLayout& grid, const char* entry, bool is_length) {
    const int row = grid.rowCount();
    QLineEdit* box = number_box(entry, ENTRY_WIDTH);
    QLabel* text = named_label(entry_label(entry));
    text->setBuddy(box);
    QLabel* unit = named_label((QString(entry) + "_unit").toUtf8().constData());
    grid.addWidget(text, row, 0);
    grid.addWidget(box, row, 1);
    grid.addWidget(unit, row, 2);
    if (is_length) {
        length_units_.append(unit);
    }
}

void Form1::add_buttons(QVBoxLayout& layout) {
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    calc_ = command_button("Calc");
    calc_->setDefault(true);
    accent(*calc_);
    cleardesign_ = command_button("cleardesign");
    row->addWidget(calc_, 1);
    row->addWidget(cleardesign_);
    layout.addLayout(row);
}

void Form1::add_results(QVBoxLayout& layout) {
    auto* card = new QFrame;
    set_accessible_role(*card, QAccessible::Grouping);
    card->setFrameShape(QFrame::StyledPanel);
    card->setBackgroundRole(QPalette::Base);
    card->setAutoFillBackground(true);
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(MARGIN, 3, MARGIN, 3);
    grid->setHorizontalSpacing(RESULT_SPACING);
    grid->setVerticalSpacing(ROW_SPACING);
    grid->setColumnStretch(0, 1);
    const auto add = [&](const char* label, const char* output) {
        const int row = grid->rowCount();
        QLabel* caption = named_label(label);
        caption->setFont(compact_font());
        QLabel* result = result_label(output);
        caption->setBuddy(result);
        grid->addWidget(caption, row, 0);
        grid->addWidget(result, row, 1);
        grid->addWidget(new trial_label("Form1", output), row, 2);
        grid->addWidget(new pinned_label("Form1", output), row, 4);
        if (has_exact_value("Form1", output)) {
            grid->addWidget(new differing_sign("Form1", output, context_), row, 3);
        }
    };
    add("Label11", "capacity");
    QLabel* unit = named_label("units_label");
    unit->setIndent(RESULT_SPACING);
    grid->addWidget(unit, grid->rowCount() - 1, 2);
    add("Label17", "area_ratio");
    add("Label18", "max_chamb_vol");
    add("Label19", "min_chamb_vol");
    layout.addWidget(card);
    auto* hidden = named_label("hiddenprojnamelabel");
    hidden->setParent(card);
    hidden->setVisible(false);
}

void Form1::connect_commands() {
    command_runner& runner = context_.runner;
    connect(calc_, &QPushButton::clicked, this, [&runner] { runner.act(calculate_profiles); });
    connect(cleardesign_, &QPushButton::clicked, this, [&runner] { runner.act(clear_design); });
    connect(dimens_, &QButtonGroup::idClicked, this, [&runner](int code) {
        runner.act([code](program& kavetta, user&) {
            set_unit_labels(kavetta, length_unit_of(static_cast<std::int16_t>(code)));
        });
    });
    connect(unittype_, &QComboBox::activated, this, [this, &runner] {
        const std::int16_t code = capacity_unit_code(utf8_text(unittype_->currentText()));
        runner.act([code](program& kavetta, user&) { select_capacity_unit(kavetta, code); });
    });
    connect(image1_, &language_flag::clicked, this, [&runner] {
        runner.act(
            [](program& kavetta, user& person) { choose_language(kavetta, person, ENGLISH); });
    });
    connect(image2_, &language_flag::clicked, this, [&runner] {
        runner.act(
            [](program& kavetta, user& person) { choose_language(kavetta, person, GERMAN); });
    });
}

void Form1::refresh() {
    mdi_form::refresh();
    refresh_signs(*this);
    show_assist();
    show_units();
    unittype_->setToolTip(tooltip_of(context_.kavetta, "Form1", "unittype"));
    image1_->setChecked(context_.kavetta.app_state.language == ENGLISH);
    image2_->setChecked(context_.kavetta.app_state.language == GERMAN);
}

/// The trial of the capacity stands in the place of its unit, which the list above names too.
void Form1::show_trial(const trial_figures* trial) {
    mdi_form::show_trial(trial);
    findChild<QLabel*>("units_label")->setVisible(findChild<QLabel*>("capacity_trial")->isHidden());
}

/// The button that runs at Enter is the one that can be pressed.
void Form1::show_assist() {
    assist_->refresh();
    const bool is_on = context_.kavetta.app_state.assist_on;
    calc_->setEnabled(!is_on);
    calc_->setDefault(!is_on);
    set_main_button(is_on ? assist_->designer() : calc_);
}

void Form1::show_units() {
    const app_state& state = context_.kavetta.app_state;
    dimens_->button(length_unit_of(state).code)->setChecked(true);
    unittype_->setCurrentText(qt_text(context_.kavetta.labels.unittype));
    show_length_unit(state, length_units_);
    findChild<QLabel*>("hiddenprojnamelabel")
        ->setText(qt_text(context_.kavetta.labels.hiddenprojnamelabel));
}

void Form1::changeEvent(QEvent* event) {
    mdi_form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && calc_ != nullptr) {
        accent(*calc_);
        assist_->refresh();
    }
}

void Form1::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit exit_asked();
}

}  // namespace kvt
