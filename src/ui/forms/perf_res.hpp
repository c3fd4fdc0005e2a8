// perf_res: the Performance Results window with the headline results of Calculate Performance.
#pragma once

#include "ui/shell/loaded_form.hpp"

namespace kvt {

class perf_res : public loaded_form {
    Q_OBJECT

  public:
    explicit perf_res(form_context context);

    QSize start_size() const override;
    void refresh() override;
};

}  // namespace kvt
