// contact_sheets: one picture a form that shows it in every scaling, palette and language side by
// side.
#pragma once

#include <QString>

namespace kvt {

/// The file of one picture of a form in the pieces folder: FORM.LANGUAGE.PALETTE.SCALE.png.
QString piece_name(const QString& form, const QString& language, const QString& palette,
                   int percent);

/// Reads all pieces of a folder and writes FORM.png for each form. The number of sheets, or -1 when
/// one can't be written.
int write_contact_sheets(const QString& pieces_folder, const QString& out_folder);

}  // namespace kvt
