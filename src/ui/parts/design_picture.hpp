// Picture1: the square sheet of the Design view. It paints what the program has drawn and what the
// ticks of its menu add, and tells where the mouse is, or the cross that the keys move.
#pragma once

#include "ui/parts/view_overlays.hpp"
#include "views/sight/rotor_fill.hpp"
#include "views/sight/sight_drawing.hpp"

#include <QWidget>

#include <optional>
#include <vector>

namespace kvt {

class design_picture : public QWidget {
    Q_OBJECT

  public:
    /// Without a mouse: the arrow keys move a cross, with Ctrl by one pixel; Space presses and
    /// releases there in turn, Esc releases where it pressed; Plus and Minus turn the wheel there.
    explicit design_picture(QWidget* parent);

    /// Takes over everything, or what a turn or the mouse changes.
    void show_view(const design_view& view, const view_box& box);
    void show_rotors(const design_view& view);
    void show_band(const rubber_band& band);
    void show_overlays(std::vector<view_overlay> overlays);
    /// The outlines of the pinned design, below those of the present one.
    void show_pinned(design_painting pinned);
    /// Takes over what lies below and beside the drawing.
    void show_sight(rotor_fill fill, sight_drawing sight);

    /// While measuring the left button and Space set points and draw no band.
    void set_measuring(bool on);

    /// All but the cross.
    void paint(QPainter& painter, const sight_palette& palette) const;

  signals:
    // Any mouse button but the middle one; twips of the drawing from the upper left corner, within
    // 16 bits. During a drag they may lie outside the sheet.
    void pressed(double x, double y);
    void moved(double x, double y);  ///< with or without a button held
    void released(double x, double y);
    void left();

    // Twips of the drawing.
    void wheeled(double steps, double x, double y);  ///< positive: away from the user
    void panned(double dx, double dy);

    /// The right button was pressed and let go in one place, or the key of the menu was.
    void menu_asked(const QPoint& global_place);

    // While measuring; pixels.
    void point_set(double x, double y);
    void point_dragged(double x, double y);  ///< let go elsewhere than it was set
    void point_dropped();                    ///< Esc

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    point2 twips(const QPointF& pixels) const;
    bool is_drag(const QPointF& place) const;
    bool measures_with(const QMouseEvent& event) const;
    void pan_to(const QPointF& place);
    void release_band(const QMouseEvent& event);
    void wheel_at_cross(double steps);
    void move_cross(const QPoint& step);
    void press_space();
    void drop_band();
    void paint_cross(QPainter& painter, const sight_palette& palette) const;
    const sight_palette& palette_of_desktop() const;

    QPoint cross_;  ///< pixels; shown while the picture has the focus by a key
    bool shows_cross_ = false;
    std::optional<QPoint> pressed_;    ///< where Space has begun a band
    QPointF mouse_down_;               ///< where a button went down, pixels
    std::optional<QPointF> pan_from_;  ///< where the middle button holds the drawing, pixels
    bool is_measuring_ = false;
    view_box box_;
    design_painting painting_;
    design_painting pinned_;
    std::vector<view_overlay> overlays_;
    rotor_fill fill_;
    sight_drawing sight_;
};

}  // namespace kvt
