// staged_program: the desktop program in a folder of its own, with a project that has gone through
// all stages.
#pragma once

#include "ui/shell/desktop.hpp"

#include <QPixmap>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

namespace kvt {

/// Whoever looks at the pictures answers nothing: a dialog is closed as soon as it was seen.
class staged_program {
  public:
    /// share: the delivered files. language: ENGLISH or GERMAN.
    staged_program(const std::string& share, const std::string& project, std::int16_t language);

    /// Calculates profiles, ports and performance, and opens the explanation windows. False when a
    /// stage was refused.
    bool calculate();
    /// The rotors alone, without ports.
    bool calculate_rotors();
    /// Opens all charts; after calculate.
    void open_charts();

    kvt::program& program() { return desktop_->program(); }
    MDIForm1& window() { return desktop_->window(); }
    command_runner& runner() { return desktop_->runner(); }
    /// The dialog that a menu entry opens, closed again; nothing when it opens none.
    QPixmap dialog_of(const QString& menu_entry);
    /// Lets what waits in the event loop happen.
    static void settle();
    /// Until something is so, which comes from another thread; a minute at most.
    static void await(const std::function<bool()>& is_so);

  private:
    void close_dialog();

    QTemporaryDir folder_;
    QTimer watch_;
    QPixmap last_dialog_;
    std::unique_ptr<desktop> desktop_;
};

}  // namespace kvt
