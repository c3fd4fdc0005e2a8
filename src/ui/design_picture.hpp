// Picture1: the square sheet of the Design view. It only paints what the program has drawn.
#pragma once

#include "ui/design_painting.hpp"

#include <QWidget>

namespace kvt {

class design_picture : public QWidget {
    Q_OBJECT

  public:
    explicit design_picture(QWidget* parent);

    void show_view(const design_view& view);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    design_painting painting_;
};

}  // namespace kvt
