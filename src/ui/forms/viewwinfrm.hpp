// viewwinfrm: the Design view, where the rotor pair is drawn to scale, zoomed and turned.
#pragma once

#include "app/trial/preview_state.hpp"
#include "core/sight_ticks.hpp"
#include "ui/parts/design_export.hpp"
#include "ui/parts/design_painting.hpp"
#include "ui/shell/mdi_form.hpp"
#include "views/rotation.hpp"
#include "views/sight/sight.hpp"

#include <QToolButton>

#include <vector>

class QLineEdit;
class QTimer;

namespace kvt {

class design_picture;
class design_popup;
struct view_overlay;

using icon_of_palette = QIcon (*)(const QPalette& palette);

/// A button that acts as long as it is held: it says when the left mouse button goes down on it and
/// when it goes up on it. Without the mouse each press is one step.
/// Kept: a mouse-up elsewhere says nothing, so what was started goes on until the next mouse-up on
/// the button; viewwinfrm_test holds it.
class hold_button : public QToolButton {
    Q_OBJECT

  public:
    /// The icon is drawn anew for each palette, as the desktop may change to dark.
    explicit hold_button(icon_of_palette drawn);

  signals:
    void held();
    void let_go();
    /// Space or Enter goes down, or a program that helps to read the screen presses the button.
    void stepped();

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    icon_of_palette icon_;
    bool is_under_mouse_button_ = false;
};

class viewwinfrm : public mdi_form {
    Q_OBJECT

  public:
    explicit viewwinfrm(form_context context);

    void refresh() override;

    /// The resize rule: the side of the picture follows the form's height, and the form's width
    /// follows the picture. Maximised, the form keeps its size. The drawing fills the picture; its
    /// record stays as it is until the next Calculate Profiles.
    void size_picture();

    /// The pair and its angle anew after a turn that another window has made.
    void show_turned();

    /// What lies over the calculated design: the trial of the entries that are being typed.
    void show_preview(const preview_state& trial);
    /// Draws the design that is pointed at in a study over the pair; null: none is.
    void show_pointed(std::shared_ptr<const kept_design> design);

    void name_controls() override;

  signals:
    /// Where the mouse is in the design, as a text; empty when it is not over a drawing.
    void cursor_moved(const QString& place);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QWidget* bottom_row();
    hold_button* rotate_button(const char* name, icon_of_palette icon, turning direction);
    void connect_picture();
    void connect_measuring();
    void connect_popup();
    void translate_popup();
    void open_popup(const QPoint& global_place);
    void take_tick(const sight_tick_row& row, bool on);
    void show_drawing();
    void show_sight();
    void tell_sight();
    sight_source source() const;
    shown_picture shown() const;
    void zoom_by_steps(double steps, double x, double y);
    void pan(double dx, double dy);
    void set_point(double x, double y);
    void point_at(const view_box& box, const point2& pixels);
    void copy_picture() const;
    void save_picture();
    void move_band(double x, double y);
    void leave_picture();
    void turn(turning direction);
    void stop_turning();
    void describe_picture();
    design_painting painting_of(const kept_design& kept, const overlaid_outlines& which) const;
    void draw_pinned();
    void show_overlays();
    void add_overlay(const shown_trial& trial, const overlaid_outlines& which,
                     std::vector<view_overlay>& overlays) const;
    void place_controls(int side);

    QWidget* content_;
    design_picture* picture_;
    QWidget* bottom_row_;
    QLineEdit* angle_ = nullptr;
    QList<QTimer*> timers_;
    shown_trial rotors_, ports_;                  ///< drawn over the pair
    std::shared_ptr<const kept_design> pointed_;  ///< of a study, drawn over it, too
    design_popup* popup_ = nullptr;
    std::int16_t popup_language_ = 0;
    measurement measured_;
};

}  // namespace kvt
