#include "ui/forms/viewwinfrm.hpp"

#include "app/program.hpp"
#include "app/trial/pinned_design.hpp"
#include "app/windows/cursor_text.hpp"
#include "app/windows/view_commands.hpp"
#include "core/length_unit.hpp"
#include "core/text_table.hpp"
#include "ui/parts/accessible_names.hpp"
#include "ui/parts/design_picture.hpp"
#include "ui/parts/design_popup.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/parts/sight_painting.hpp"
#include "ui/shell/qt_text.hpp"
#include "views/design_view_text.hpp"
#include "views/sight/snap.hpp"
#include "views/zoom.hpp"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// The time between two turns of one degree while a button is held, milliseconds.
constexpr int TURN_INTERVAL = 10;
constexpr int ANGLE_WIDTH = 56;

/// A trial, beside rotors in ink, red and blue ports, on a light and on a dark sheet; pale where it
/// is older than the entries.
constexpr QColor TRIAL_COLOUR(170, 70, 235);
constexpr QColor PALE_TRIAL_COLOUR(170, 70, 235, 90);
constexpr double TRIAL_WIDTH = 1.2;  ///< pixels
/// Of a design of a study: told apart from trials in light and dark.
constexpr QColor POINTED_COLOUR(0, 140, 120);

/// How much larger one notch of the wheel draws.
constexpr double ZOOM_OF_STEP = 1.25;
/// How near a measured point is drawn to a profile or a centre.
constexpr double SNAP_PIXELS = 9.0;

int pixels(double twips) {
    return qRound(twips / TWIPS_PER_PIXEL);
}

}  // namespace

hold_button::hold_button(icon_of_palette drawn) : icon_(drawn) {
    setIcon(icon_(palette()));
    connect(this, &QToolButton::clicked, this, [this] {
        if (!is_under_mouse_button_) {
            emit stepped();
        }
    });
}

void hold_button::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setIcon(icon_(palette()));
    }
}

void hold_button::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
        event->key() == Qt::Key_Enter) {
        emit stepped();
    } else {
        QToolButton::keyPressEvent(event);
    }
}

void hold_button::mousePressEvent(QMouseEvent* event) {
    is_under_mouse_button_ = true;
    QToolButton::mousePressEvent(event);
    if (event->button() == Qt::LeftButton) {
        emit held();
    }
}

void hold_button::mouseReleaseEvent(QMouseEvent* event) {
    QToolButton::mouseReleaseEvent(event);
    is_under_mouse_button_ = false;
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        emit let_go();
    }
}

viewwinfrm::viewwinfrm(form_context context) : mdi_form("viewwinfrm", context) {
    auto* content = new QWidget;
    picture_ = new design_picture(content);
    bottom_row_ = bottom_row();
    bottom_row_->setParent(content);
    content_ = content;
    bind(content, true);
    connect_picture();
    connect(&context_.runner, &command_runner::starting, this, &viewwinfrm::stop_turning);
    connect(&context_.runner, &command_runner::stopped, this, &viewwinfrm::stop_turning);
}

QWidget* viewwinfrm::bottom_row() {
    auto* row = new QWidget;
    auto* layout = new QGridLayout(row);
    layout->setContentsMargins(8, 0, 8, 4);
    layout->setVerticalSpacing(0);
    layout->setHorizontalSpacing(6);
    auto* label = new QLabel;
    label->setObjectName("rotate_label");
    angle_ = new QLineEdit;
    angle_->setObjectName("rotated_angle");
    angle_->setFixedWidth(ANGLE_WIDTH);
    angle_->setAlignment(Qt::AlignRight);
    label->setBuddy(angle_);
    auto* zoom = new QPushButton;
    zoom->setObjectName("zoom_all_command");
    zoom->setFocusPolicy(Qt::TabFocus);
    connect(zoom, &QPushButton::clicked, this, [this] { context_.runner.act(zoom_all); });
    connect(angle_, &QLineEdit::returnPressed, this, [this] {
        context_.runner.act([](program& kavetta, user&) { take_typed_angle(kavetta); });
    });
    layout->addWidget(label, 0, 0, 1, 4);
    layout->addWidget(rotate_button("rotate_rotors_cw", clockwise_icon, turning::clockwise), 1, 0);
    layout->addWidget(
        rotate_button("rotate_rotors_ccw", counter_clockwise_icon, turning::counter_clockwise), 1,
        1);
    layout->addWidget(angle_, 1, 2);
    layout->setColumnStretch(3, 1);
    layout->addWidget(zoom, 1, 4);
    return row;
}

/// A button and its timer, Timer_ and the button's name without the "rotors".
hold_button* viewwinfrm::rotate_button(const char* name, icon_of_palette icon, turning direction) {
    auto* button = new hold_button(icon);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoRaise(false);
    auto* timer = new QTimer(this);
    timer->setObjectName(direction == turning::clockwise ? "Timer_rotate_cw" : "Timer_rotate_ccw");
    timer->setInterval(TURN_INTERVAL);
    timer->setTimerType(Qt::PreciseTimer);
    timers_.append(timer);
    connect(button, &hold_button::held, timer, qOverload<>(&QTimer::start));
    connect(button, &hold_button::let_go, timer, &QTimer::stop);
    connect(timer, &QTimer::timeout, this, [this, direction] { turn(direction); });
    connect(button, &hold_button::stepped, this, [this, direction] { turn(direction); });
    return button;
}

void viewwinfrm::connect_picture() {
    connect(picture_, &design_picture::pressed, this, [this](double x, double y) {
        context_.runner.act([x, y](program& kavetta, user&) { rubber_band_down(kavetta, x, y); });
    });
    connect(picture_, &design_picture::moved, this, &viewwinfrm::move_band);
    connect(picture_, &design_picture::released, this, [this](double x, double y) {
        context_.runner.act(
            [x, y](program& kavetta, user& person) { rubber_band_up(kavetta, person, x, y); });
    });
    connect(picture_, &design_picture::left, this, &viewwinfrm::leave_picture);
    connect(picture_, &design_picture::wheeled, this, &viewwinfrm::zoom_by_steps);
    connect(picture_, &design_picture::panned, this, &viewwinfrm::pan);
    connect(picture_, &design_picture::menu_asked, this, &viewwinfrm::open_popup);
    connect_measuring();
}

void viewwinfrm::connect_measuring() {
    connect(picture_, &design_picture::point_set, this, &viewwinfrm::set_point);
    connect(picture_, &design_picture::point_dragged, this, [this](double x, double y) {
        if (measured_.first && !measured_.second) {
            set_point(x, y);
        }
    });
    connect(picture_, &design_picture::point_dropped, this, [this] {
        measured_ = {};
        tell_sight();
    });
}

void viewwinfrm::connect_popup() {
    connect(popup_, &design_popup::ticked, this, &viewwinfrm::take_tick);
    connect(popup_, &design_popup::copy_asked, this, &viewwinfrm::copy_picture);
    connect(popup_, &design_popup::save_asked, this, &viewwinfrm::save_picture);
}

/// A menu of the language in force; the language does not change while it is open.
void viewwinfrm::translate_popup() {
    const std::int16_t language = context_.kavetta.app_state.language;
    if (popup_ != nullptr && popup_language_ == language) {
        return;
    }
    delete popup_;
    popup_ = new design_popup(language, picture_);
    popup_language_ = language;
    connect_popup();
}

void viewwinfrm::open_popup(const QPoint& global_place) {
    if (!popup_->isVisible()) {
        popup_->show_ticks(context_.kavetta.app_state.sight_ticks);
        popup_->popup(global_place);
    }
}

void viewwinfrm::take_tick(const sight_tick_row& row, bool on) {
    if (context_.runner.step(
            [&row, on](program& kavetta) { kavetta.app_state.sight_ticks.*row.tick = on; })) {
        measured_ = {};
        tell_sight();
    }
}

void viewwinfrm::refresh() {
    mdi_form::refresh();
    translate_popup();
    show_drawing();
}

void viewwinfrm::show_drawing() {
    const program& kavetta = context_.kavetta;
    picture_->show_view(kavetta.design_view, view_box(kavetta.view_state));
    show_sight();
    draw_pinned();
    show_overlays();
}

sight_source viewwinfrm::source() const {
    const program& kavetta = context_.kavetta;
    return {kavetta.design_params,         kavetta.view_state, kavetta.design_view,
            kavetta.app_state.sight_ticks, measured_,          length_unit_of(kavetta.app_state),
            kavetta.app_state.language};
}

void viewwinfrm::show_sight() {
    const sight_source seen = source();
    picture_->set_measuring(seen.ticks.measuring && has_rotors(seen.view));
    picture_->show_sight(
        seen.ticks.filled ? fill_of(seen.view, view_box(seen.state)) : rotor_fill(),
        draw_sight(seen, metrics_of_view()));
}

/// The same, and in words for a screen reader.
void viewwinfrm::tell_sight() {
    show_sight();
    describe_picture();
}

void viewwinfrm::zoom_by_steps(double steps, double x, double y) {
    const double factor = std::pow(ZOOM_OF_STEP, steps);
    if (context_.runner.step([=](program& kavetta) { zoom_by_wheel(kavetta, factor, x, y); })) {
        show_drawing();
    }
}

void viewwinfrm::pan(double dx, double dy) {
    if (context_.runner.step([=](program& kavetta) { pan_view(kavetta, dx, dy); })) {
        show_drawing();
    }
}

void viewwinfrm::set_point(double x, double y) {
    point_at(view_box(context_.kavetta.view_state), {x, y});
    if (measured_.pointer) {
        measured_.set_point(*measured_.pointer);
    }
    tell_sight();
}

/// The pointer at a place of the box, drawn to what is near.
void viewwinfrm::point_at(const view_box& box, const point2& pixels) {
    const program& kavetta = context_.kavetta;
    const double reach = box.on_drawing({SNAP_PIXELS, 0.0}).x;
    const snapped_place snapped =
        snap_to_drawing(kavetta.design_view, kavetta.view_state, box.on_drawing(pixels), reach);
    measured_.pointer = box.on_pump(box.on_box(snapped.place));
    measured_.pointer_kind = snapped.kind;
}

shown_picture viewwinfrm::shown() const {
    return {[this](QPainter& painter) { picture_->paint(painter, sight_palette_on(false)); },
            picture_->width(), windowTitle()};
}

void viewwinfrm::copy_picture() const {
    QGuiApplication::clipboard()->setImage(image_of(shown(), devicePixelRatioF()));
}

void viewwinfrm::save_picture() {
    context_.runner.act([this](const program& kavetta, user& person) {
        save_view_picture(kavetta, person, [this](const std::string& path) {
            return picture_of_path(shown(), path, devicePixelRatioF());
        });
    });
}

void viewwinfrm::move_band(double x, double y) {
    if (context_.runner.step([x, y](program& kavetta) { rubber_band_move(kavetta, x, y); })) {
        picture_->show_band(context_.kavetta.design_view.Line3);
        emit cursor_moved(qt_text(cursor_text(context_.kavetta, x, y)));
        if (context_.kavetta.app_state.sight_ticks.measuring) {
            const view_box box(context_.kavetta.view_state);
            point_at(box, box.on_box({x, y}));
            show_sight();
        }
    }
}

void viewwinfrm::leave_picture() {
    emit cursor_moved(QString());
    if (measured_.pointer) {
        measured_.pointer.reset();
        show_sight();
    }
}

void viewwinfrm::show_preview(const preview_state& trial) {
    rotors_ = trial.rotors();
    ports_ = trial.ports();
    show_overlays();
}

void viewwinfrm::show_pointed(std::shared_ptr<const kept_design> design) {
    pointed_ = std::move(design);
    show_overlays();
    describe_picture();
}

/// Outlines of a design where the view stands.
design_painting viewwinfrm::painting_of(const kept_design& kept,
                                        const overlaid_outlines& which) const {
    const view_state place = overlay_place(context_.kavetta, kept);
    return design_painting(overlay_of(kept, which, place), view_box(place));
}

void viewwinfrm::draw_pinned() {
    const pinned_design* pinned = context_.kavetta.pinned.get();
    picture_->show_pinned(pinned == nullptr ? design_painting()
                                            : painting_of(pinned->design, pinned->design.outlines));
}

/// They are drawn anew where the view stands, which a turn, a zoom or another size changes.
void viewwinfrm::show_overlays() {
    std::vector<view_overlay> overlays;
    add_overlay(rotors_, {.rotors = true}, overlays);
    if (ports_.design != nullptr) {
        overlaid_outlines ports = ports_.design->outlines;
        ports.rotors = false;
        add_overlay(ports_, ports, overlays);
    }
    if (pointed_ != nullptr) {
        overlays.push_back(
            {painting_of(*pointed_, pointed_->outlines), POINTED_COLOUR, TRIAL_WIDTH});
    }
    picture_->show_overlays(std::move(overlays));
}

void viewwinfrm::add_overlay(const shown_trial& trial, const overlaid_outlines& which,
                             std::vector<view_overlay>& overlays) const {
    if (trial.design == nullptr) {
        return;
    }
    overlays.push_back({painting_of(*trial.design, which),
                        trial.is_pale ? PALE_TRIAL_COLOUR : TRIAL_COLOUR, TRIAL_WIDTH});
}

void viewwinfrm::turn(turning direction) {
    if (context_.runner.step(
            [direction](program& kavetta) { rotation_tick(kavetta, direction); })) {
        show_turned();
    }
}

void viewwinfrm::show_turned() {
    angle_->setText(qt_text(context_.kavetta.entries.rotated_angle));
    picture_->show_rotors(context_.kavetta.design_view);
    draw_pinned();
    show_overlays();
    tell_sight();
}

void viewwinfrm::name_controls() {
    mdi_form::name_controls();
    describe_picture();
}

void viewwinfrm::describe_picture() {
    const program& kavetta = context_.kavetta;
    const QString shown =
        qt_text(design_view_text(kavetta.design_params, kavetta.view_state, kavetta.design_view,
                                 length_unit_of(kavetta.app_state), kavetta.app_state.language));
    const QString more = qt_text(sight_words(source()));
    QStringList sentences = {shown, more};
    if (kavetta.pinned != nullptr) {
        sentences.append(qt_text(form_text("pinned", "drawn", kavetta.app_state.language)) +
                         qt_text(kavetta.pinned->name) + ".");
    }
    if (pointed_ != nullptr) {
        sentences.append(qt_text(form_text("study_form", "drawn", kavetta.app_state.language)));
    }
    sentences.removeAll(QString());
    set_accessible_description(*picture_, sentences.join(" ") + "\n" + picture_->toolTip());
}

void viewwinfrm::stop_turning() {
    for (QTimer* timer : timers_) {
        timer->stop();
    }
}

void viewwinfrm::hideEvent(QHideEvent* event) {
    stop_turning();
    mdi_form::hideEvent(event);
}

void viewwinfrm::resizeEvent(QResizeEvent* event) {
    mdi_form::resizeEvent(event);
    if (!isMinimized() && !isShaded()) {
        size_picture();
    }
}

void viewwinfrm::size_picture() {
    const std::optional<view_layout> layout =
        resize_design_view(context_.kavetta, height() * TWIPS_PER_PIXEL);
    if (!layout) {
        return;
    }
    if (!isMaximized()) {
        resize(pixels(layout->form_width), pixels(layout->form_height));
    }
    place_controls(pixels(layout->picture_side));
    show_drawing();
}

/// The picture in the middle, the row below it. With a large font, or in a small form, the content
/// scrolls.
void viewwinfrm::place_controls(int side) {
    const QSize row = bottom_row_->sizeHint();
    content_->setMinimumSize(std::max(side, row.width()), side + row.height());
    const QSize room = widget()->size().expandedTo(content_->minimumSize());
    picture_->setGeometry((room.width() - side) / 2, (room.height() - row.height() - side) / 2,
                          side, side);
    bottom_row_->setGeometry(0, room.height() - row.height(), room.width(), row.height());
}

}  // namespace kvt
