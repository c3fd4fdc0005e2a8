#include "ui/forms/portdes.hpp"

#include "app/program.hpp"
#include "app/stages/design_ports.hpp"
#include "app/stages/porting_type.hpp"
#include "core/entry_names.hpp"
#include "core/text_table.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace kvt {

namespace {

/// Room between the controls, pixels: the form is low and wide in the default layout.
constexpr int ROW_SPACING = 2;
constexpr int COLUMN_SPACING = 3;
constexpr int MARGIN = 4;
constexpr int FRAME_MARGIN = 1;
/// An angle as it is filled in.
constexpr const char* WIDEST_NUMBER = "146.27";

QGridLayout* frame_grid(QGroupBox& frame) {
    auto* grid = new QGridLayout(&frame);
    grid->setContentsMargins(FRAME_MARGIN, MARGIN, FRAME_MARGIN, MARGIN);
    grid->setHorizontalSpacing(COLUMN_SPACING);
    grid->setVerticalSpacing(ROW_SPACING);
    return grid;
}

QString widest_unit() {
    return qt_text(message_text(message::unit_mm, ENGLISH));
}

QGroupBox* named_frame(const char* name) {
    auto* frame = new QGroupBox;
    frame->setObjectName(name);
    return frame;
}

QWidget* row_of(QBoxLayout*& layout) {
    auto* row = new QWidget;
    layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(COLUMN_SPACING);
    return row;
}

}  // namespace

portdes::portdes(form_context context) : mdi_form("portdes", context) {
    auto* content = new QWidget;
    content->setFont(compact_font());
    auto* right = new QVBoxLayout;
    right->setSpacing(MARGIN);
    auto* layout = new QHBoxLayout(content);
    layout->setContentsMargins(MARGIN - 3, MARGIN, MARGIN - 3, MARGIN);
    layout->setSpacing(COLUMN_SPACING);
    layout->addWidget(inlet_frame());
    layout->addWidget(outlet_frame());
    layout->addLayout(right, 1);
    right->addWidget(type_frame());
    right->addWidget(fillet_row());
    right->addStretch(1);
    right->addWidget(button_row());
    bind(content, true);
    set_main_button(design_ports_);
    connect_commands();
}

QGroupBox* portdes::inlet_frame() {
    QGroupBox* frame = named_frame("Frame2");
    QGridLayout& grid = *frame_grid(*frame);
    add_entry(grid, "inlet_start_inner", false);
    add_entry(grid, "inlet_start_outer", false);
    add_entry(grid, "inlet_end_inner", false);
    add_entry(grid, "inlet_end_outer", false);
    add_entry(grid, "inlet_inner_radius", true);
    add_entry(grid, "inlet_outer_radius", true);
    return frame;
}

QGroupBox* portdes::outlet_frame() {
    QGroupBox* frame = named_frame("Frame3");
    QGridLayout& grid = *frame_grid(*frame);
    add_entry(grid, "outlet_start_inner", false);
    add_entry(grid, "outlet_start_outer", false);
    add_entry(grid, "outlet_end_inner", false);
    add_entry(grid, "outlet_end_outer", false);
    add_entry(grid, "Outlet_inner_radius", true);
    add_entry(grid, "Outlet_outer_radius", true);
    return frame;
}

void portdes::add_entry(QGridLayout& grid, const char* entry, bool is_length) {
    const int row = grid.rowCount();
    QLineEdit* box = compact_box(entry, WIDEST_NUMBER);
    QLabel* text = named_label(entry_label(entry));
    text->setBuddy(box);
    (is_length ? length_units_ : angle_units_).append(add_unit(*box, widest_unit()));
    grid.addWidget(text, row, 0);
    grid.addWidget(box, row, 1);
    grid.setColumnStretch(0, 1);
}

/// The port types; below them what belongs to the groove, each caption above its box.
QGroupBox* portdes::type_frame() {
    QGroupBox* frame = named_frame("Frame1");
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(FRAME_MARGIN, MARGIN, FRAME_MARGIN, MARGIN);
    layout->setSpacing(MARGIN);
    auto* checks = new QGridLayout;
    checks->setSpacing(ROW_SPACING);
    checks->addWidget(named_check("inlet_double_sided"), 0, 0);
    checks->addWidget(named_check("outlet_double_sided"), 1, 0);
    checks->addWidget(named_check("shadow_ports"), 0, 1);
    checks->addWidget(named_check("metering_groove"), 1, 1);
    auto* groove = new QGridLayout;
    groove->setHorizontalSpacing(COLUMN_SPACING);
    groove->setVerticalSpacing(0);
    int column = 0;
    for (const char* entry : {"groove_length", "groove_width", "groove_depth"}) {
        QLabel* text = named_label(entry_label(entry));
        QLineEdit* box = compact_box(entry, WIDEST_NUMBER);
        box->setMaximumWidth(QWIDGETSIZE_MAX);
        text->setBuddy(box);
        groove->addWidget(text, 0, column);
        groove->addWidget(box, 1, column++);
    }
    layout->addLayout(checks);
    layout->addLayout(groove);
    return frame;
}

QWidget* portdes::fillet_row() {
    QBoxLayout* layout = nullptr;
    QWidget* row = row_of(layout);
    QLabel* text = named_label(entry_label("port_radii"));
    QLineEdit* box = compact_box("port_radii", WIDEST_NUMBER);
    text->setBuddy(box);
    length_units_.append(add_unit(*box, widest_unit()));
    layout->addWidget(text);
    layout->addWidget(box);
    layout->addStretch(1);
    layout->setContentsMargins(MARGIN + 3, 0, 0, 0);
    return row;
}

QWidget* portdes::button_row() {
    QBoxLayout* layout = nullptr;
    QWidget* row = row_of(layout);
    design_ports_ = command_button("design_ports");
    design_ports_->setDefault(true);
    accent(*design_ports_);
    clear_ports_ = command_button("clear_ports");
    layout->addWidget(design_ports_, 1);
    layout->addWidget(clear_ports_);
    return row;
}

void portdes::connect_commands() {
    command_runner& runner = context_.runner;
    connect(design_ports_, &QPushButton::clicked, this, [&runner] {
        runner.act([](program& kavetta, user& person) { design_ports(kavetta, person); });
    });
    connect(clear_ports_, &QPushButton::clicked, this, [&runner] { runner.act(clear_ports); });
    for (QCheckBox* check : findChildren<QCheckBox*>()) {
        connect(check, &QCheckBox::clicked, this, [&runner] {
            runner.act([](program& kavetta, user&) { porting_type_clicked(kavetta); });
        });
    }
}

void portdes::refresh() {
    mdi_form::refresh();
    const app_state& state = context_.kavetta.app_state;
    show_length_unit(state, length_units_);
    for (QLabel* unit : angle_units_) {
        unit->setText(qt_text(message_text(message::unit_degrees, state.language)));
    }
}

void portdes::changeEvent(QEvent* event) {
    mdi_form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && design_ports_ != nullptr) {
        accent(*design_ports_);
    }
}

}  // namespace kvt
