// newprojectname: the dialog that asks for the name of a new project.
#pragma once

#include "ui/shell/dialog_form.hpp"

#include <functional>

class QLineEdit;

namespace kvt {

class newprojectname : public dialog_form {
    Q_OBJECT

  public:
    /// refused is called when a character is typed that a project file cannot hold.
    newprojectname(const program& kavetta, QWidget* parent, const std::function<void()>& refused);

    /// The typed name; an empty one is accepted.
    std::string name() const;

  private:
    QLineEdit* name_;
};

}  // namespace kvt
