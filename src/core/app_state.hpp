// app_state: the state of the program beside the design itself.
#pragma once

#include "base/fixed4.hpp"
#include "core/sight_ticks.hpp"

#include <cstdint>
#include <string>

namespace kvt {

/// The language codes of the settings file. A message is German for 2 and English for anything
/// else.
inline constexpr std::int16_t ENGLISH = 1;
inline constexpr std::int16_t GERMAN = 2;

inline constexpr std::int16_t MILLIMETRES = 1;
inline constexpr std::int16_t INCHES = 2;

/// The 16-bit flags hold -1 or 1 for "set" as their comments say, 0 for "not set".
struct app_state {
    // Language and units.
    std::int16_t language =
        ENGLISH;  ///< 1 English, 2 German; 0 when the settings file named neither
    std::int16_t drawing_units =
        MILLIMETRES;                 ///< 1 millimetres, 2 inches; shadowed by dimens1 and dimens2
    std::int16_t capacity_unit = 1;  ///< 1 .. 5, the row of the unittype list
    fixed4 volumereqd_value;         ///< required capacity in the unit of capacity_unit

    // The open project.
    std::string
        project_path;  ///< full path of the project file, UTF-8; empty until Open or Save As
    std::string project_name;  ///< name in the title bar and in line 2 of the file
    bool project_has_file = false;
    std::string projects_folder;  ///< folder in which the file dialogs start; empty at start-up
    std::string mnufileprev[4] = {"&1", "&2", "&3",
                                  "&4"};  ///< the captions of the recent entries are their state
    std::string cnc_file_troc, cnc_file_inner, cnc_file_xyouter;
    std::string cnc_file_innertooloffset, cnc_file_outertooloffset, cnc_file_outer;
    bool new_pressed = false;   ///< the user chose New at the start prompt
    bool open_pressed = false;  ///< the user chose Open at the start prompt

    // Settings that the settings file carries.
    std::string modelling_package;
    std::string auto_update_mode;
    std::string last_update_check;
    bool auto_updates = true;     ///< the check mark of mnuupdatesauto; nothing else follows it
    std::string update_server;    ///< scheme, host and port; empty: the update check is off
    bool preview_on = true;       ///< the tick of mnuwindowpreview; kept in preferences.ini
    bool exit_cancelled = false;  ///< set by Cancel at the exit question, never set back

    // Settings of our own.
    kvt::sight_ticks sight_ticks;

    // The explanation windows: true while the window is closed.
    bool explain_closed = true;
    bool port_explain_closed = true;

    // The charts: set while the chart is open.
    bool chart_open_flow = false, chart_open_power = false, chart_open_stress = false;
    bool chart_open_ripple = false;
    bool chart_open_ve = false, chart_open_mech = false, chart_open_overall = false;

    // Geometry flags.
    std::int16_t profiles_calculated = 0;  ///< -1 once Calculate Profiles has passed its start
    std::int16_t zoom_all_requested =
        0;  ///< -1: the next run is a repeat asked for by the zoom-all button
    std::int16_t recalc_quiet =
        0;                   ///< -1: Design Ports runs for a Zoom All; results and enablings stay
    bool assist_on = false;  ///< Des_assist_check: Design assist in place of Calculate Profiles
    bool assist_hidden =
        false;  ///< designer and its frame lines are hidden, from New or Open until assist_on
};

}  // namespace kvt
