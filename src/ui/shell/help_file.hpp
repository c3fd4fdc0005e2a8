// help_file: the user's guide, opened by the platform's own viewer.
#pragma once

#include <string_view>

namespace kvt {

class progress_shower;
class user;
struct program;

/// The help file in the program's folder; both languages use the same one.
inline constexpr const char* HELP_FILE_NAME = "KVT_V2021_Help_EN.pdf";

/// F1 and Display Help File: opens the help file through QDesktopServices. A file that is missing,
/// or that nothing can open, is told in the status bar.
void open_help_file(program& kavetta, user& person);
/// The same from a window of a command that is still at work.
void show_help_file(const program& kavetta, progress_shower& person);

}  // namespace kvt
