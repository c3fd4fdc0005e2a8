// loaded_form: what the child windows have in common that are built when they are shown and
// forgotten when they close.
#pragma once

#include "ui/shell/mdi_form.hpp"

namespace kvt {

class loaded_form : public mdi_form {
    Q_OBJECT

  public:
    loaded_form(const char* form, form_context context);

    /// The size in which it appears; asked for when it stands in the main window.
    virtual QSize start_size() const { return sizeHint(); }
    /// Where it appears in the main window's area: in its middle, its size at most that of the
    /// area.
    virtual QRect start_place(const QRect& area) const;

  protected:
    /// Closing forgets the form; the next show builds it anew.
    void closeEvent(QCloseEvent* event) override;
    /// Esc closes.
    void keyPressEvent(QKeyEvent* event) override;

    /// What the form leaves behind when it closes.
    virtual void unload() {}
};

}  // namespace kvt
