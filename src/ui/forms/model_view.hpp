// model_view: the solids of the built-in modeller, looked at, cut open, measured and saved.
#pragma once

#include "app/models/save_model.hpp"
#include "ui/shell/loaded_form.hpp"
#include "views/model/model_scene.hpp"

#include <QList>

#include <optional>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;

namespace kvt {

class body_tree;
class model_canvas;

class model_view : public loaded_form {
    Q_OBJECT

  public:
    explicit model_view(form_context context);

    QSize start_size() const override;
    /// Shows what the modeller holds now.
    void refresh() override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    /// A point that was clicked, where the body stands without a turn.
    struct measured_point {
        body_number body;
        body_role role;
        point3 point;
    };

    QWidget* body_list();
    QWidget* section_controls();
    void connect_sections();
    QWidget* housing_controls();
    QWidget* file_buttons();
    QWidget* view_buttons();
    QWidget* picture_area();
    QPushButton* view_button(const char* name, int key, void (model_view::*look)());

    void fit();
    void look_from_front();
    void look_from_above();
    void look_from_right();
    void look_isometric();

    model_scene scene_now() const;
    std::vector<section_plane> sections() const;
    double section_height() const;
    /// The range of the height follows the ticked bodies.
    void show_heights();
    void show_scene(bool is_new, bool moves);
    void follow_ticks();
    void follow_sections();
    void follow_design_view();
    void show_status();
    void show_housing();

    void measure(bool on);
    void take_point(std::size_t part, const point3& point);
    std::vector<point3> measured_places() const;
    void show_measure();

    void save();
    void export_picture();
    void close_document();

    body_tree* bodies_ = nullptr;
    model_canvas* canvas_ = nullptr;
    std::vector<model_body> shown_;
    QCheckBox* section_axis_ = nullptr;
    QSpinBox* section_angle_ = nullptr;
    QCheckBox* section_across_ = nullptr;
    QSlider* section_height_ = nullptr;
    QLabel* section_height_value_ = nullptr;
    QCheckBox* turn_with_view_ = nullptr;
    QCheckBox* housing_ = nullptr;
    QList<QLineEdit*> housing_boxes_;  ///< outer diameter, wall, floor
    QList<QLabel*> units_;
    std::int16_t housing_units_ = 0;  ///< of the texts in the boxes
    QPushButton* measure_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* close_ = nullptr;
    QLabel* status_ = nullptr;
    QLabel* measure_status_ = nullptr;
    std::vector<measured_point> measured_;
};

}  // namespace kvt
