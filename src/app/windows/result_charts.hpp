// result_charts: the command Create Charts, and what the charts share with the program: their
// flags, their places, the file of their picture.
#pragma once

#include "core/file_chooser.hpp"
#include "core/form_table.hpp"
#include "views/charts/result_chart.hpp"

#include <string_view>

namespace kvt {

class form_shower;
class progress_shower;
struct app_state;
struct program;

/// create_charts: shows the chart of each ticked box, in the order of the boxes. A chart that is
/// open comes to the front with what it shows.
void create_charts(const program& kavetta, form_shower& forms);

/// The load of a chart: sets its flag of the group chart_open_flow and copies the results with the
/// language and units in force.
result_chart load_chart(program& kavetta, chart_kind kind);

/// A chart that was loaded in a language and units, with the curves of the pinned design, as far as
/// there are any.
result_chart beside_pinned(const program& kavetta, const result_chart& loaded,
                           std::int16_t language, unit_system system);

/// The unload of a chart: clears its flag.
void unload_chart(program& kavetta, chart_kind kind);

/// Whether the flag of a chart is set.
bool is_chart_open(const app_state& state, chart_kind kind);

/// Where a chart opens. Each number of its stored rectangle counts by itself: in place of a 0, or
/// without a stored one, stands that of the table of forms.
window_rectangle chart_place(const program& kavetta, chart_kind kind);

/// popupsave: writes the bytes of a picture into the folder images of the program, under the
/// project's name with the chart's file ending, and tells the file in the status bar. Throws
/// run_time_error when the folder is missing or the file can't be written, and for a name with a
/// character that not every system has in file names, the separators of folders among them.
void save_chart_picture(const program& kavetta, progress_shower& status, const result_chart& chart,
                        std::string_view picture);

/// The dialog of popupexport.
file_dialog chart_export_dialog(const program& kavetta, const result_chart& chart);

}  // namespace kvt
