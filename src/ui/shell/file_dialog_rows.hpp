// The rows of a file dialog's filter, and the endings that names get from them.
#pragma once

#include "core/file_chooser.hpp"

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>

class QFileDialog;

namespace kvt {

/// "All files|*.*|KVT|*.KVT" becomes "All files (*)", "KVT (*.KVT *.kvt)": both ways to write an
/// extension match.
QStringList name_filters(std::string_view filter);

/// Title, mode, rows, folder and proposed name of what a command asks for.
void set_up(QFileDialog& box, const file_dialog& dialog);

/// The row whose ending a name has; empty without one.
QString row_with_ending_of(const QString& name, const QStringList& rows);

/// The ending that a name gets from a row; empty for a row of all files.
QString ending_of_row(const QString& row);

/// The name with the ending that it lacks, if any: that of the chosen row of the box; in a row of
/// all files the extension, without a point.
QString with_ending_of_row(const QString& name, const QFileDialog& box,
                           const std::string& extension);

}  // namespace kvt
