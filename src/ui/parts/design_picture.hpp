// Picture1: the square sheet of the Design view. It paints what the program has drawn and tells
// where the mouse is, or the cross that the keys move.
#pragma once

#include "ui/parts/view_overlays.hpp"

#include <QWidget>

#include <optional>
#include <vector>

namespace kvt {

class design_picture : public QWidget {
    Q_OBJECT

  public:
    /// Without a mouse: the arrow keys move a cross, with Ctrl by one pixel; Space presses and
    /// releases there in turn, Esc releases where it pressed.
    explicit design_picture(QWidget* parent);

    /// Takes over everything, or what a turn or the mouse changes.
    void show_view(const design_view& view, const view_box& box);
    void show_rotors(const design_view& view);
    void show_band(const rubber_band& band);
    void show_overlays(std::vector<view_overlay> overlays);

  signals:
    // Any mouse button; twips of the drawing from the upper left corner, within 16 bits. During a
    // drag they may lie outside the sheet.
    void pressed(double x, double y);
    void moved(double x, double y);  ///< with or without a button held
    void released(double x, double y);
    void left();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    point2 twips(const QPointF& pixels) const;
    void move_cross(const QPoint& step);
    void press_space();
    void drop_band();
    void paint_cross(QPainter& painter) const;

    QPoint cross_;  ///< pixels; shown while the picture has the focus by a key
    bool shows_cross_ = false;
    std::optional<QPoint> pressed_;  ///< where Space has begun a band
    view_box box_;
    design_painting painting_;
    std::vector<view_overlay> overlays_;
};

}  // namespace kvt
