// desktop: one running Kavetta with its windows, from the settings to the end.
#pragma once

#include "ui/MDIForm1.hpp"
#include "ui/command_runner.hpp"
#include "ui/entry_focus.hpp"
#include "ui/qt_user.hpp"

#include <filesystem>
#include <string>

namespace kvt {

class desktop {
  public:
    /// folder is the program's folder, already filled.
    explicit desktop(const std::filesystem::path& folder);

    /// Reads the settings, asks new or open (or opens the project of path in its place), then shows the windows.
    /// False when the program ended meanwhile.
    bool start(const std::string& path = {});

    kvt::program& program() { return program_; }
    command_runner& runner() { return runner_; }
    MDIForm1& window() { return window_; }

  private:
    kvt::program program_;
    qt_user person_;
    command_runner runner_;
    entry_focus entry_focus_;
    MDIForm1 window_;
};

}  // namespace kvt
