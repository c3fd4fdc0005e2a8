// project_file_picture: the icon of project files.
#pragma once

class QPainter;

namespace kvt {

/// A sheet of paper with the program's picture on it, in a square from the origin with a side of
/// PICTURE_UNITS.
void paint_project_file_picture(QPainter& painter);

}  // namespace kvt
