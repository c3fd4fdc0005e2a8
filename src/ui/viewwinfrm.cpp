#include "ui/viewwinfrm.hpp"

#include "app/calculate_profiles.hpp"
#include "ui/design_picture.hpp"
#include "ui/drawn_icons.hpp"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

namespace kvt {

namespace {

/// What the form is higher and wider than its square picture, twips.
constexpr int HEIGHT_BEYOND_PICTURE = 1185;
constexpr int WIDTH_BEYOND_PICTURE = 390;
/// view_size is a 16-bit integer.
constexpr int LARGEST_VIEW_SIZE = 32767;

QToolButton* rotate_button(const char* name, const QIcon& icon) {
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setIcon(icon);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoRaise(false);
    return button;
}

}  // namespace

viewwinfrm::viewwinfrm(form_context context) : mdi_form("viewwinfrm", context) {
    auto* content = new QWidget;
    picture_ = new design_picture(content);
    bottom_row_ = bottom_row();
    bottom_row_->setParent(content);
    content_ = content;
    bind(content, true);
}

QWidget* viewwinfrm::bottom_row() {
    auto* row = new QWidget;
    auto* layout = new QGridLayout(row);
    layout->setContentsMargins(8, 0, 8, 4);
    layout->setVerticalSpacing(0);
    layout->setHorizontalSpacing(6);
    auto* label = new QLabel;
    label->setObjectName("rotate_label");
    auto* angle = new QLineEdit;
    angle->setObjectName("rotated_angle");
    angle->setFixedWidth(56);
    angle->setAlignment(Qt::AlignRight);
    label->setBuddy(angle);
    auto* zoom = new QPushButton;
    zoom->setObjectName("zoom_all_command");
    zoom->setFocusPolicy(Qt::TabFocus);
    connect(zoom, &QPushButton::clicked, this, &viewwinfrm::zoom_all);
    layout->addWidget(label, 0, 0, 1, 4);
    layout->addWidget(rotate_button("rotate_rotors_cw", clockwise_icon(palette())), 1, 0);
    layout->addWidget(rotate_button("rotate_rotors_ccw", counter_clockwise_icon(palette())), 1, 1);
    layout->addWidget(angle, 1, 2);
    layout->setColumnStretch(3, 1);
    layout->addWidget(zoom, 1, 4);
    return row;
}

void viewwinfrm::refresh() {
    mdi_form::refresh();
    picture_->show_view(context_.kavetta.design_view);
}

void viewwinfrm::zoom_all() {
    context_.runner.act([](program& kavetta, user& person) {
        kavetta.app_state.zoom_all_requested = -1;
        calculate_profiles(kavetta, person);
    });
}

void viewwinfrm::resizeEvent(QResizeEvent* event) {
    mdi_form::resizeEvent(event);
    if (!isMinimized() && !isShaded()) {
        size_picture();
    }
}

/// The side of the picture follows the form's height, and the form's width follows the picture. Maximised, the form
/// keeps its size. The drawing stays as it is until the next Calculate Profiles.
void viewwinfrm::size_picture() {
    const int side_twips = height() * TWIPS_PER_PIXEL - HEIGHT_BEYOND_PICTURE;
    if (side_twips < 0) {
        return;
    }
    context_.kavetta.app_state.view_size = static_cast<std::int16_t>(std::min(side_twips, LARGEST_VIEW_SIZE));
    const int side = side_twips / TWIPS_PER_PIXEL;
    if (!isMaximized()) {
        resize(side + WIDTH_BEYOND_PICTURE / TWIPS_PER_PIXEL, height());
    }
    place_controls(side);
}

/// The picture in the middle, the row below it. With a large font, or in a small form, the content scrolls.
void viewwinfrm::place_controls(int side) {
    const QSize row = bottom_row_->sizeHint();
    content_->setMinimumSize(std::max(side, row.width()), side + row.height());
    const QSize room = widget()->size().expandedTo(content_->minimumSize());
    picture_->setGeometry((room.width() - side) / 2, (room.height() - row.height() - side) / 2, side, side);
    bottom_row_->setGeometry(0, room.height() - row.height(), room.width(), row.height());
}

}  // namespace kvt
