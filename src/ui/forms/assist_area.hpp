// assist_area: the part of the Design form that belongs to the Design assist: the required
// capacity, the switch and the button, on a ground that turns green, between four frame lines.
#pragma once

#include "ui/parts/form_binding.hpp"

class QFrame;
class QLayout;
class QPushButton;

namespace kvt {

class assist_area : public QWidget {
    Q_OBJECT

  public:
    /// requirement is the row of the required capacity; it stands above the switch and the button.
    assist_area(form_context context, QLayout* requirement);

    /// Shows the switch, the button, the ground and the frame lines as the program's state says.
    void refresh();

    QPushButton* designer() const { return designer_; }

  private:
    void add_ground(QLayout* requirement);
    void add_frame_lines();
    void connect_commands();

    form_context context_;
    QFrame* ground_;
    QPushButton* check_;
    QPushButton* designer_;
    QList<QFrame*> frame_lines_;
};

}  // namespace kvt
