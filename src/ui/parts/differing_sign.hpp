// differing_sign: the quiet sign beside a figure whose exact value differs.
#pragma once

#include "ui/parts/form_binding.hpp"

#include <QList>
#include <QToolButton>

namespace kvt {

/// Named as the control of the figure with "_exact" behind it. It is a drawn sign, so no text of
/// the table; what it says is its tooltip. A click opens the window Exact Figures at its row.
class differing_sign : public QToolButton {
    Q_OBJECT

  public:
    differing_sign(const char* form, const char* control, form_context context);

    /// Shown while the exact value of the figure differs; its room stays.
    void refresh();

    /// It has no text that would need more.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::string row_;
    form_context context_;
};

/// Whether a figure of a form has an exact one.
bool has_exact_value(std::string_view form, std::string_view control);

/// Shows the signs below a form anew.
void refresh_signs(const QWidget& form);

}  // namespace kvt
