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
    void show_trial(const trial_figures* trial) override;
    void show_pinned(const pinned_figures* pinned) override;

  private:
    void grow_to_content();
};

}  // namespace kvt
