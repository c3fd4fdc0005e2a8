// present_layout: where the windows stand on the screen at this moment.
#pragma once

#include "core/window_rectangles.hpp"

class QMainWindow;
class QWidget;

namespace kvt {

/// The rectangles of the main window, of its child windows and of the open charts, twips. A child
/// window counts with the place it has when it is neither maximised nor minimised, shown or hidden;
/// an explanation window and a chart have one while they are there, the main window while its state
/// is normal.
window_rectangles present_layout(const QMainWindow& window);

/// Puts a window of its own where its rectangle says, or inside the nearest screen; its frame
/// belongs to the place, not to the size.
void place_window(QWidget& window, const window_rectangle& rectangle);

/// The place of a child window, inside the area that the screens could show of it.
window_rectangle child_place(const window_rectangle& rectangle);

}  // namespace kvt
