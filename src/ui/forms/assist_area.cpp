#include "ui/forms/assist_area.hpp"

#include "app/program.hpp"
#include "app/stages/design_assist.hpp"
#include "ui/parts/accessible_role.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QFrame>
#include <QGridLayout>
#include <QPushButton>

namespace kvt {

namespace {

/// Thickness of the frame lines and room inside them, pixels.
constexpr int FRAME_LINE = 2;
constexpr int MARGIN = 3;

constexpr QColor ASSIST_GREEN(0, 255, 0);

/// A bar that keeps its room while it is hidden, so that nothing moves when the assist is switched.
QFrame* frame_line(const char* name) {
    auto* line = new QFrame;
    set_accessible_role(*line, QAccessible::Separator);
    line->setObjectName(name);
    line->setAutoFillBackground(true);
    line->setMinimumSize(FRAME_LINE, FRAME_LINE);
    QSizePolicy keeps_room = line->sizePolicy();
    keeps_room.setRetainSizeWhenHidden(true);
    line->setSizePolicy(keeps_room);
    return line;
}

/// A ground in the assist's colour with black ink, in a dark theme too. What stands on it keeps its
/// own colours.
QPalette green_ground() {
    QPalette palette;
    palette.setColor(QPalette::Window, ASSIST_GREEN);
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

QPalette green_button() {
    QPalette palette;
    palette.setColor(QPalette::Button, ASSIST_GREEN);
    palette.setColor(QPalette::ButtonText, Qt::black);
    return palette;
}

}  // namespace

assist_area::assist_area(form_context context, QLayout* requirement)
    : context_(context),
      ground_(new QFrame),
      check_(command_button("Des_assist_check")),
      designer_(command_button("designer")) {
    add_ground(requirement);
    add_frame_lines();
    connect_commands();
}

void assist_area::add_ground(QLayout* requirement) {
    ground_->setObjectName("Des_assist_bkgnd");
    set_accessible_role(*ground_, QAccessible::Grouping);
    ground_->setAutoFillBackground(true);
    check_->setCheckable(true);
    QSizePolicy keeps_room = designer_->sizePolicy();
    keeps_room.setRetainSizeWhenHidden(true);
    designer_->setSizePolicy(keeps_room);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(4);
    buttons->addWidget(check_, 1);
    buttons->addWidget(designer_, 1);
    auto* layout = new QVBoxLayout(ground_);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(MARGIN);
    layout->addLayout(requirement);
    layout->addLayout(buttons);
}

void assist_area::add_frame_lines() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    for (const char* name : {"Line1", "Line3", "Line4", "Line5"}) {
        frame_lines_.append(frame_line(name));
    }
    grid->addWidget(frame_lines_[0], 0, 0, 1, 3);  // above
    grid->addWidget(frame_lines_[1], 1, 0);        // left
    grid->addWidget(ground_, 1, 1);
    grid->addWidget(frame_lines_[2], 1, 2);        // right
    grid->addWidget(frame_lines_[3], 2, 0, 1, 3);  // below
    grid->setColumnStretch(1, 1);
}

void assist_area::connect_commands() {
    command_runner& runner = context_.runner;
    connect(check_, &QPushButton::clicked, this, [&runner](bool on) {
        runner.act([on](program& kavetta, user&) { set_assist(kavetta, on); });
    });
    connect(designer_, &QPushButton::clicked, this, [&runner] {
        runner.act([](program& kavetta, user& person) { design_assist(kavetta, person); });
    });
}

void assist_area::refresh() {
    const assist_look look = look_of_assist(context_.kavetta.app_state);
    check_->setText(qt_text(look.caption));
    check_->setChecked(look.green);
    designer_->setEnabled(look.designer_enabled);
    designer_->setVisible(look.designer_visible);
    ground_->setPalette(look.green ? green_ground() : QPalette());
    check_->setPalette(look.green ? green_button() : QPalette());
    QPalette line;
    line.setColor(QPalette::Window, look.green ? ASSIST_GREEN : QColor(Qt::black));
    for (QFrame* frame_line : frame_lines_) {
        frame_line->setPalette(line);
        frame_line->setVisible(look.frame_lines_visible);
    }
}

}  // namespace kvt
