// preview: tries the entries beside the windows while they are typed, and has what came of it
// shown.
#pragma once

#include "app/trial/preview_state.hpp"
#include "ui/parts/form_binding.hpp"
#include "ui/parts/latest_task.hpp"

#include <QObject>

namespace kvt {

class preview : public QObject {
    Q_OBJECT

  public:
    preview(form_context context, QObject* parent);

    const preview_state& state() const { return state_; }

    /// Looks whether the entries are to be tried, and begins it. Costs a copy of the records.
    void look();

  signals:
    /// Another trial is to be shown, or none.
    void changed();

  private:
    void try_entries();

    form_context context_;
    preview_state state_;
    latest_task task_;
};

}  // namespace kvt
