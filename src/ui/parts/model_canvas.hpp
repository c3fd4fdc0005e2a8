// model_canvas: the picture of the Model View, which is turned, moved and zoomed with mouse and
// keys, and in which points are picked.
#pragma once

#include "views/model/model_picture.hpp"

#include <QImage>
#include <QTimer>
#include <QWidget>

#include <optional>
#include <vector>

namespace kvt {

class model_canvas : public QWidget {
    Q_OBJECT

  public:
    explicit model_canvas(const char* name);

    /// Draws a scene; its meshes must stay until the next one. While something moves the picture is
    /// coarse at first.
    void show_scene(model_scene scene, bool moves);
    const model_scene& scene() const { return scene_; }
    const model_camera& camera() const { return camera_; }

    void fit();
    void look_from(const view_direction& direction);
    /// In this mode a click picks a point, and so does Space in the middle, where a cross stands.
    void set_picking(bool picks);
    /// Points with a line between them, over the picture.
    void show_measure(std::vector<point3> points, const QColor& colour);

    /// The picture with `density` dots to each of its own.
    QImage picture(int density) const;

  signals:
    void point_picked(std::size_t part, const kvt::point3& point);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QSize size_in_dots() const;
    QPointF in_dots(const QPointF& place) const { return place * devicePixelRatioF(); }
    /// A coarse picture has half of the screen's columns and rows; a fine one is drawn with twice
    /// as many where the dots of the screen are large, so that edges are smooth.
    void draw_fine();
    void draw_coarse();
    void draw(const model_scene& scene, const model_camera& camera);
    /// Draws a coarse picture now, and a fine one when nothing has moved for a moment.
    void draw_moving();
    int dots_of_fine() const;
    void drag(const QPointF& step);
    void pick_at(const QPointF& place);
    bool move_by_key(int key, bool with_ctrl);
    point3 pivot_at(const QPointF& place) const;
    void paint_measure(QPainter& painter, const model_camera& camera, double dots) const;
    void paint_cross(QPainter& painter) const;

    model_scene scene_;
    model_camera camera_;  ///< in dots of the screen
    std::optional<model_picture> picture_;
    QImage image_;           ///< what is painted of it
    double density_ = 1.0;   ///< columns of the picture to a dot of the screen
    bool is_fitted_ = true;  ///< nothing was moved since
    QTimer fine_drawing_;

    Qt::MouseButton dragged_ = Qt::NoButton;
    QPointF pressed_, last_;
    bool has_moved_ = false;
    point3 pivot_;

    bool picks_ = false;
    std::vector<point3> measured_;
    QColor measure_colour_;
};

}  // namespace kvt
