// pinned_label: a result of the pinned design in the column beside the present results, and whose
// column that is.
#pragma once

#include "core/entries.hpp"

#include <QLabel>

#include <string>

namespace kvt {

struct figure;

struct pinned_figures {
    labels texts;
    std::string heading;  ///< "Pinned: engine_oil"
};

/// Named as the result with "_pinned" behind it; hidden while there is nothing to say. The unit
/// stands behind the present result.
class pinned_label : public QLabel {
    Q_OBJECT

  public:
    pinned_label(const char* form, const char* control);

    /// Null: nothing is pinned.
    void show_figure(const pinned_figures* pinned, char decimal_mark);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const figure* figure_;
};

/// The head of the column, cut where there is less room; whole in its tooltip.
class pinned_heading : public QLabel {
    Q_OBJECT

  public:
    pinned_heading();

    void show_heading(const pinned_figures* pinned);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void elide();

    QString heading_;
};

/// Shows the pinned design in all labels below a widget.
void show_pinned_figures(const QWidget& below, const pinned_figures* pinned, char decimal_mark);

}  // namespace kvt
