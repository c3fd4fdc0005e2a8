// Form4: the choice of the CAD package in which models are built.
#pragma once

#include "ui/shell/dialog_form.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace kvt {

class progress_shower;

class Form4 : public dialog_form {
    Q_OBJECT

  public:
    /// The option of the package of this code is set; of no package none is.
    Form4(const program& kavetta, progress_shower& person, std::string_view code, QWidget* parent);

    /// The code of the option that is set; nothing while none is.
    std::optional<std::string> code() const;

  protected:
    /// F1 opens the help file.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    progress_shower& person_;
};

}  // namespace kvt
