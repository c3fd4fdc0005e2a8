#include "ui/forms/model_view.hpp"

#include "app/models/shown_models.hpp"
#include "app/program.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ui/parts/accessible_names.hpp"
#include "ui/parts/body_tree.hpp"
#include "ui/parts/chart_export.hpp"
#include "ui/parts/entry_validator.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/parts/ink.hpp"
#include "ui/parts/model_canvas.hpp"
#include "ui/shell/qt_text.hpp"
#include "views/model/model_palette.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// Sizes in pixels.
constexpr QSize START_SIZE(900, 640);
constexpr int MARGIN = 8;
constexpr int SPACING = 4;
constexpr int LIST_HEIGHT = 90;
constexpr int HOUSING_BOX_WIDTH = 70;

/// The steps of the slider of the height.
constexpr int HEIGHT_STEPS = 1000;
constexpr int PAGES_OF_HEIGHT = 20;
/// Degrees.
constexpr int LARGEST_ANGLE = 359;
constexpr int ANGLE_STEP = 5;
constexpr int PICTURE_DENSITY = 2;

/// The hourglass as long as it lives.
class waiting_pointer {
  public:
    waiting_pointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~waiting_pointer() { QApplication::restoreOverrideCursor(); }
    waiting_pointer(const waiting_pointer&) = delete;
    waiting_pointer& operator=(const waiting_pointer&) = delete;
};

QVBoxLayout* column(QWidget* widget) {
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SPACING);
    return layout;
}

QGridLayout* grid(QWidget* widget) {
    auto* layout = new QGridLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SPACING);
    layout->setColumnStretch(0, 1);
    return layout;
}

QLabel* label_of(const char* name, QWidget* buddy) {
    QLabel* label = named_label(name);
    label->setBuddy(buddy);
    return label;
}

QLabel* status_label(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    // The picture keeps its size when a line comes or goes.
    label->setMinimumHeight(label->fontMetrics().lineSpacing());
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFocusPolicy(Qt::NoFocus);
    return label;
}

QSpinBox* angle_box(const char* name) {
    auto* box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(0, LARGEST_ANGLE);
    box->setWrapping(true);
    box->setSingleStep(ANGLE_STEP);
    return box;
}

QSlider* height_slider(const char* name) {
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(name);
    slider->setRange(0, HEIGHT_STEPS);
    slider->setPageStep(HEIGHT_STEPS / PAGES_OF_HEIGHT);
    slider->setValue(HEIGHT_STEPS / 2);
    return slider;
}

}  // namespace

model_view::model_view(form_context context) : loaded_form("model_view", context) {
    auto* content = new QWidget;
    auto* left = new QVBoxLayout;
    left->setSpacing(SPACING);
    left->addWidget(body_list(), 1);
    left->addWidget(hairline());
    left->addWidget(section_controls());
    left->addWidget(hairline());
    left->addWidget(housing_controls());
    left->addWidget(hairline());
    left->addWidget(file_buttons());
    auto* right = new QVBoxLayout;
    right->setSpacing(SPACING);
    right->addWidget(view_buttons());
    right->addWidget(picture_area(), 1);
    status_ = status_label("model_status");
    measure_status_ = status_label("measure_status");
    right->addWidget(status_);
    right->addWidget(measure_status_);
    auto* layout = new QHBoxLayout(content);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(MARGIN);
    layout->addLayout(left);
    layout->addLayout(right, 1);
    bind(content, true);
    connect(&context_.runner, &command_runner::stepped, this, &model_view::follow_design_view);
}

QWidget* model_view::body_list() {
    bodies_ = new body_tree("bodies");
    bodies_->setMinimumHeight(LIST_HEIGHT);
    connect(bodies_, &body_tree::ticks_changed, this, &model_view::follow_ticks);
    connect(bodies_, &QTreeWidget::itemSelectionChanged, this, &model_view::show_status);
    auto* list = new QWidget;
    QVBoxLayout* layout = column(list);
    layout->addWidget(label_of("bodies_label", bodies_));
    layout->addWidget(bodies_, 1);
    return list;
}

QWidget* model_view::section_controls() {
    section_axis_ = named_check("section_axis");
    section_angle_ = angle_box("section_angle");
    section_across_ = named_check("section_across");
    section_height_ = height_slider("section_height");
    section_height_value_ = new QLabel;
    section_height_value_->setObjectName("section_height_value");
    turn_with_view_ = named_check("turn_with_view");
    connect_sections();
    auto* sections = new QWidget;
    QGridLayout* layout = grid(sections);
    layout->addWidget(section_axis_, 0, 0, 1, 3);
    layout->addWidget(label_of("section_angle_label", section_angle_), 1, 0);
    layout->addWidget(section_angle_, 1, 1, 1, 2);
    layout->addWidget(section_across_, 2, 0, 1, 3);
    layout->addWidget(label_of("section_height_label", section_height_), 3, 0);
    layout->addWidget(section_height_value_, 3, 1, 1, 2, Qt::AlignRight);
    layout->addWidget(section_height_, 4, 0, 1, 3);
    layout->addWidget(turn_with_view_, 5, 0, 1, 3);
    return sections;
}

void model_view::connect_sections() {
    for (QCheckBox* check : {section_axis_, section_across_}) {
        connect(check, &QCheckBox::toggled, this, &model_view::follow_sections);
    }
    connect(section_angle_, &QSpinBox::valueChanged, this, &model_view::follow_sections);
    connect(section_height_, &QSlider::valueChanged, this, &model_view::follow_sections);
    connect(turn_with_view_, &QCheckBox::toggled, this, [this] { show_scene(false, false); });
}

QWidget* model_view::housing_controls() {
    housing_ = named_check("housing");
    auto* entries = new QWidget;
    QGridLayout* layout = grid(entries);
    layout->addWidget(housing_, 0, 0, 1, 3);
    for (const char* name : {"housing_diameter", "housing_wall", "housing_floor"}) {
        QLineEdit* box = number_box(name, HOUSING_BOX_WIDTH);
        validate_number(*box, [this] {
            context_.person.show_status(
                message_text(message::number_refused, context_.kavetta.app_state.language));
        });
        QLabel* unit = named_label(qPrintable(QString(name) + "_unit"));
        const int row = layout->rowCount();
        layout->addWidget(label_of(qPrintable(QString(name) + "_label"), box), row, 0);
        layout->addWidget(box, row, 1);
        layout->addWidget(unit, row, 2);
        housing_boxes_.append(box);
        units_.append(unit);
    }
    connect(housing_, &QCheckBox::toggled, this, [this] { show_housing(); });
    return entries;
}

QWidget* model_view::file_buttons() {
    save_ = command_button("save_model");
    close_ = command_button("close_document");
    connect(save_, &QPushButton::clicked, this, &model_view::save);
    connect(close_, &QPushButton::clicked, this, &model_view::close_document);
    auto* files = new QWidget;
    QVBoxLayout* layout = column(files);
    layout->addWidget(save_);
    layout->addWidget(close_);
    return files;
}

QPushButton* model_view::view_button(const char* name, int key, void (model_view::*look)()) {
    QPushButton* button = command_button(name);
    connect(button, &QPushButton::clicked, this, look);
    auto* shortcut = new QShortcut(QKeySequence(key), this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, look);
    return button;
}

QWidget* model_view::view_buttons() {
    measure_ = command_button("measure_points");
    measure_->setCheckable(true);
    connect(measure_, &QPushButton::toggled, this, &model_view::measure);
    QPushButton* picture = command_button("export_picture");
    connect(picture, &QPushButton::clicked, this, &model_view::export_picture);
    auto* views = new QWidget;
    auto* layout = new QHBoxLayout(views);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SPACING);
    layout->addWidget(view_button("fit_view", Qt::Key_F, &model_view::fit));
    layout->addWidget(view_button("front_view", Qt::Key_1, &model_view::look_from_front));
    layout->addWidget(view_button("top_view", Qt::Key_2, &model_view::look_from_above));
    layout->addWidget(view_button("right_view", Qt::Key_3, &model_view::look_from_right));
    layout->addWidget(view_button("isometric_view", Qt::Key_0, &model_view::look_isometric));
    layout->addStretch(1);
    layout->addWidget(measure_);
    layout->addWidget(picture);
    return views;
}

QWidget* model_view::picture_area() {
    canvas_ = new model_canvas("picture");
    connect(canvas_, &model_canvas::point_picked, this, &model_view::take_point);
    return canvas_;
}

QSize model_view::start_size() const {
    return START_SIZE;
}

void model_view::refresh() {
    loaded_form::refresh();
    const program& kavetta = context_.kavetta;
    const bool is_new = bodies_->show_documents(built_documents(kavetta));
    show_length_unit(kavetta.app_state, units_);
    set_accessible_name(*canvas_, windowTitle());
    close_->setEnabled(bodies_->topLevelItemCount() > 0);
    show_housing();
    shown_ = bodies_->ticked_bodies();
    show_heights();
    if (is_new) {
        const waiting_pointer hourglass;  // new bodies get their surfaces now
        show_scene(true, false);
        canvas_->fit();
    } else {
        show_scene(false, false);
    }
    show_status();
}

/// Without a word of the person the boxes have what fits the design.
void model_view::show_housing() {
    const program& kavetta = context_.kavetta;
    const housing_texts usual = usual_housing_texts(kavetta);
    const std::array<std::string, 3> texts = {usual.outer_diameter, usual.wall, usual.floor};
    const bool has_other_units = housing_units_ != kavetta.app_state.drawing_units;
    for (qsizetype i = 0; i < housing_boxes_.size(); ++i) {
        QLineEdit& box = *housing_boxes_[i];
        box.setEnabled(housing_->isChecked());
        if (!box.isModified() || has_other_units) {
            box.setText(qt_text(texts[static_cast<std::size_t>(i)]));
        }
    }
    housing_units_ = kavetta.app_state.drawing_units;
}

model_scene model_view::scene_now() const {
    model_look look;
    look.on_dark_ground = is_dark(palette());
    look.turns_with_design_view = turn_with_view_->isChecked();
    look.line_width = std::max(1, static_cast<int>(std::lround(devicePixelRatioF())));
    model_scene scene = scene_of_bodies(context_.kavetta, shown_, look);
    scene.sections = sections();
    return scene;
}

std::vector<section_plane> model_view::sections() const {
    std::vector<section_plane> planes;
    if (section_axis_->isChecked()) {
        planes.push_back(section_through_axis(section_angle_->value()));
    }
    if (section_across_->isChecked()) {
        planes.push_back(section_across_axis(section_height()));
    }
    return planes;
}

/// From the lowest to the highest place of the bodies that are shown and of the rotors' lower face,
/// mm.
double model_view::section_height() const {
    double lowest = 0.0;
    double highest = 0.0;
    for (const model_body& body : shown_) {
        lowest = std::min(lowest, body.box.lowest.z);
        highest = std::max(highest, body.box.highest.z);
    }
    return lowest + (highest - lowest) * section_height_->value() / HEIGHT_STEPS;
}

void model_view::show_heights() {
    section_angle_->setEnabled(section_axis_->isChecked());
    section_height_->setEnabled(section_across_->isChecked());
    section_height_value_->setEnabled(section_across_->isChecked());
    section_height_value_->setText(qt_text(model_length(context_.kavetta, section_height())));
}

void model_view::show_scene(bool is_new, bool moves) {
    model_scene scene = scene_now();
    if (is_new || scene != canvas_->scene()) {
        canvas_->show_scene(std::move(scene), moves);
    }
    show_measure();
}

void model_view::follow_ticks() {
    shown_ = bodies_->ticked_bodies();
    show_heights();
    show_scene(false, false);
    show_status();
}

void model_view::follow_sections() {
    show_heights();
    show_scene(false, section_height_->isSliderDown());
}

/// A held rotation button steps every few milliseconds.
void model_view::follow_design_view() {
    if (turn_with_view_->isChecked()) {
        show_scene(false, true);
    }
}

void model_view::show_status() {
    const std::vector<model_body> chosen = bodies_->chosen_bodies();
    status_->setText(qt_text(bodies_line(context_.kavetta, chosen.empty() ? shown_ : chosen)));
    const QString shown = qt_text(bodies_line(context_.kavetta, shown_));
    set_accessible_description(*canvas_, QStringList({shown, canvas_->toolTip()}).join("\n"));
}

void model_view::fit() {
    canvas_->fit();
}
void model_view::look_from_front() {
    canvas_->look_from(FRONT_VIEW);
}
void model_view::look_from_above() {
    canvas_->look_from(TOP_VIEW);
}
void model_view::look_from_right() {
    canvas_->look_from(RIGHT_VIEW);
}
void model_view::look_isometric() {
    canvas_->look_from(ISOMETRIC_VIEW);
}

void model_view::measure(bool on) {
    measured_.clear();
    canvas_->set_picking(on);
    show_measure();
}

/// A third point begins anew.
void model_view::take_point(std::size_t part, const point3& point) {
    if (measured_.size() == 2) {
        measured_.clear();
    }
    const model_body& body = shown_[part];
    const part_turn turn = canvas_->scene().parts[part].turn;
    measured_.push_back({body.number, body.role, turned(point, back(turn))});
    show_measure();
}

std::vector<point3> model_view::measured_places() const {
    std::vector<point3> places;
    for (const measured_point& measured : measured_) {
        const part_turn turn =
            turn_with_view_->isChecked() ? turn_of(context_.kavetta, measured.role) : part_turn();
        places.push_back(turned(measured.point, turn));
    }
    return places;
}

/// Points of bodies that are not shown any more are forgotten.
void model_view::show_measure() {
    std::erase_if(measured_, [this](const measured_point& measured) {
        return std::ranges::find(shown_, measured.body, &model_body::number) == shown_.end();
    });
    const std::vector<point3> places = measured_places();
    const std::int16_t language = context_.kavetta.app_state.language;
    QString text;
    if (places.size() == 2) {
        text = qt_text(distance_line(context_.kavetta, places[0], places[1]));
    } else if (measure_->isChecked()) {
        text = qt_text(
            form_text("model_view", places.empty() ? "first_point" : "second_point", language));
    }
    measure_status_->setText(text);
    canvas_->show_measure(places, qt_colour(model_palette_on(is_dark(palette())).measure));
}

void model_view::save() {
    model_choice choice{bodies_->ticked_bodies(), std::nullopt};
    if (housing_->isChecked()) {
        choice.housing = {utf8_text(housing_boxes_[0]->text()),
                          utf8_text(housing_boxes_[1]->text()),
                          utf8_text(housing_boxes_[2]->text())};
    }
    context_.runner.act(
        [&choice](const program& kavetta, user& person) { save_model(kavetta, person, choice); });
}

void model_view::export_picture() {
    context_.runner.act([this](const program& kavetta, user& person) {
        save_model_picture(kavetta, person, [this] {
            return picture_file(canvas_->picture(PICTURE_DENSITY), "PNG");
        });
    });
}

void model_view::close_document() {
    context_.runner.act([this](const program& kavetta, user&) {
        if (const auto document = bodies_->chosen_document()) {
            // The bodies of the picture go first.
            canvas_->show_scene({}, false);
            close_model_document(kavetta, *document);
        }
    });
}

void model_view::changeEvent(QEvent* event) {
    loaded_form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && canvas_ != nullptr) {
        show_scene(false, false);
    }
}

}  // namespace kvt
