// progress_shower: what is going on, told without an answer.
#pragma once

#include <string_view>

namespace kvt {

class progress_shower {
  public:
    virtual ~progress_shower() = default;

    /// A line that needs no answer, e.g. in the status bar.
    virtual void show_status(std::string_view text) = 0;
    virtual void set_busy(bool busy) = 0;
    /// Progress of long work, 0 .. 100. An empty text leaves what stands: at first "Creating
    /// Model...".
    virtual void show_progress(std::string_view text, int percent) = 0;
    /// The same with the text as the window's title alone.
    virtual void show_titled_progress(std::string_view title, int percent) = 0;
};

}  // namespace kvt
