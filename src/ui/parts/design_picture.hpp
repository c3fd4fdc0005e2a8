// Picture1: the square sheet of the Design view. It paints what the program has drawn and tells
// where the mouse is.
#pragma once

#include "ui/parts/design_painting.hpp"

#include <QWidget>

namespace kvt {

class design_picture : public QWidget {
    Q_OBJECT

  public:
    explicit design_picture(QWidget* parent);

    /// Takes over everything, or what a turn or the mouse changes.
    void show_view(const design_view& view);
    void show_rotors(const design_view& view);
    void show_band(const rubber_band& band);

  signals:
    // Any mouse button; twips from the upper left corner, within 16 bits. During a drag they may
    // lie outside the sheet.
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

  private:
    design_painting painting_;
};

}  // namespace kvt
