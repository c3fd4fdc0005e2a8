// mdi_form: what the windows inside the main window have in common.
#pragma once

#include "core/form_table.hpp"
#include "ui/parts/form_binding.hpp"

#include <QMdiSubWindow>

#include <optional>

class QPushButton;

namespace kvt {

struct pinned_figures;
struct trial_figures;

/// A child window named as its form. A derived class builds its controls below a content widget,
/// names each one, and calls bind().
class mdi_form : public QMdiSubWindow {
    Q_OBJECT

  public:
    mdi_form(const char* form, form_context context);

    /// Shows the program's state: title, captions, entries, labels, enabling.
    virtual void refresh();

    /// Gives the controls what a screen reader says of them; behind a refresh, when all texts
    /// stand.
    virtual void name_controls();

    /// Shows what a trial would change the results to; null: there is none.
    virtual void show_trial(const trial_figures* trial);

    /// Shows the results of the pinned design; null: nothing is pinned.
    virtual void show_pinned(const pinned_figures* pinned);

    /// Places the window, frame included; twips, 15 to a logical pixel.
    void place(const window_rectangle& rectangle);
    /// The place, frame included, that the window has or goes back to when it is neither maximised
    /// nor minimised.
    QRect normal_place() const { return normal_place_; }

  protected:
    /// Closing hides the form: its entries live in the program.
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// Takes the content. With scrolling, a window smaller than the content shows scroll bars.
    void bind(QWidget* content, bool scrolls);
    /// The button that Enter presses, unless another button of the form has the focus.
    void set_main_button(QPushButton* button) { main_button_ = button; }

    form_context context_;

  private:
    void note_place();

    std::string form_;
    QRect normal_place_;
    std::optional<form_binding> binding_;
    QPushButton* main_button_ = nullptr;
};

}  // namespace kvt
