// The commands of the Screen Layout menu, and the reading of the layout at the start.
#pragma once

#include "core/screen_layout.hpp"

#include <string_view>
#include <vector>

namespace kvt {

class user;
struct program;

/// mnuscreensave: writes screen.ini from the present windows and tells so. Explanation windows are
/// written while explain_closed and port_explain_closed say that they are open, charts while their
/// flags do. Throws run_time_error when it can't be written.
void save_layout(program& kavetta, user& person, window_rectangles windows);

/// mnuscreenrestore: the built-in rectangles of the five windows, shown again where they were
/// closed, the main window maximised, both explanation windows unloaded; writes the five fixed
/// blocks, without a message. Stored rectangles of charts stay. The screen takes window_rectangles
/// over after the command. Throws run_time_error when the file can't be written.
void restore_default_layout(program& kavetta, user& person);

/// The room for the windows inside the main window, twips.
struct layout_room {
    float height = 0.0F;
    float width = 0.0F;
};

/// mnuscreenfit: the five windows side by side in the room as it is, none over another, shown again
/// where they were closed: Form1, Perffrm and viewwinfrm above, portdes and select_graphs below.
/// Where the room is short the forms become narrower and lower (they scroll), the view smaller;
/// where it is large the view grows. The main window stays, and nothing is written.
void fit_layout(program& kavetta, user& person, layout_room room);

/// The rectangles of the first start, when no layout was saved yet: the built-in ones where they
/// fit into the room, else those of fit_layout.
void use_first_layout(program& kavetta, layout_room room);

/// What the screen does after the layout was read.
struct start_layout {
    std::vector<std::string_view> shown;  ///< forms in the order in which they are shown
    std::string_view focus;  ///< the form that gets the focus; empty: as the platform leaves it
    bool is_first = false;   ///< there is no layout file yet
};

/// The load of MDIForm1: marks both explanation windows as closed, reads screen.ini into
/// window_rectangles (see read_layout) and says what to show. The first touch of Form1, at the
/// first number or in the error path, shows the new-or-open prompt; so start_project comes before
/// the screen takes the rectangles over. Never fails.
start_layout read_start_layout(program& kavetta);

/// read_start_layout, then shows its forms. One that can't be shown, e.g. for want of a picture, is
/// a failure of the reading like any other: the built-in sizes, without a message; the explanation
/// windows that were shown before it stay.
start_layout show_start_layout(program& kavetta, user& person);

}  // namespace kvt
