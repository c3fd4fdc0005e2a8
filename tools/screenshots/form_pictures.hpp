// form_pictures: what every form looks like at the moment, by the form's name.
#pragma once

#include "screenshots/staged_program.hpp"

#include <QPixmap>
#include <QString>

#include <map>

namespace kvt {

using form_pictures = std::map<QString, QPixmap>;

/// Every child window that is open, with its frame.
form_pictures pictures_of_children(MDIForm1& window);

/// Every chart that is open.
form_pictures pictures_of_charts();

/// The Study window with a study of two entries, as table and as chart ("study_chart"). It is
/// opened for it and closed again.
form_pictures pictures_of_study(staged_program& stage);

/// The prompt, the name dialog, the About box, the font and the progress window, the start picture.
form_pictures pictures_of_dialogs(const program& kavetta);

}  // namespace kvt
