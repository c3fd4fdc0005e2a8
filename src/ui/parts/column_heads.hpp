// column_heads: one label that heads two columns of boxes, each word over its column.
#pragma once

#include <QLabel>

namespace kvt {

/// The text holds two words set apart by blanks, whose number means nothing here: the first word
/// stands centred over a box at the left edge, the second over a box at the right edge.
class column_heads : public QLabel {
    Q_OBJECT

  public:
    /// box_width: width of each box, pixels.
    column_heads(const char* name, int box_width);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int box_width_;
};

}  // namespace kvt
