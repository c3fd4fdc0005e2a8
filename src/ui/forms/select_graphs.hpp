// select_graphs: the Charts form, where the results to draw are ticked.
#pragma once

#include "ui/shell/mdi_form.hpp"

class QPushButton;

namespace kvt {

class select_graphs : public mdi_form {
    Q_OBJECT

  public:
    explicit select_graphs(form_context context);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    QPushButton* create_charts_ = nullptr;
};

}  // namespace kvt
