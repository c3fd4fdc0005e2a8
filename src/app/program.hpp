// program: all state of one Kavetta, one instance a process in the desktop program, many in the
// batch program.
#pragma once

#include "app/desk/unsaved_files.hpp"
#include "app/gt/gt_choices.hpp"
#include "app/stages/exact_record.hpp"
#include "app/stages/stage_entries.hpp"
#include "automation/host.hpp"
#include "core/app_state.hpp"
#include "core/captions.hpp"
#include "core/design_params.hpp"
#include "core/enabling.hpp"
#include "core/entries.hpp"
#include "core/hints.hpp"
#include "core/rotor_profiles.hpp"
#include "core/window_rectangles.hpp"
#include "output/cnc/cnc_choices.hpp"
#include "output/file_source.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"
#include "views/design_view.hpp"
#include "views/view_state.hpp"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

class built_in_modeller;
struct pinned_design;
struct text_row;

struct program {
    kvt::design_params design_params;
    kvt::rotor_profiles rotor_profiles;
    kvt::port_params port_params;
    kvt::perf_inputs perf_inputs;
    kvt::perf_results perf_results;
    kvt::app_state app_state;
    kvt::view_state view_state;
    kvt::entries entries;
    kvt::labels labels;
    kvt::captions captions;
    kvt::enabling enabling;
    kvt::window_rectangles window_rectangles;
    kvt::design_view design_view;
    kvt::cnc_choices cnc_choices;                      ///< of the last run of the CNC output dialog
    std::optional<kvt::cnc_entries> last_cnc_entries;  ///< its boxes; nothing before the first run

    kvt::gt_choices gt_choices;

    kvt::stage_entries stage_entries;
    kvt::exact_record exact_record;

    /// What the present design is compared with, through every project; null for nothing.
    std::shared_ptr<const kvt::pinned_design> pinned;

    /// Calculate Performance ran to its end for this project: perf_results says something.
    bool performance_valid = false;
    /// perf_res is loaded since the run, so its labels hold what they show.
    bool results_shown = false;

    /// The caption of the button whose command has changed many entries at once, which names the
    /// step in the history; null otherwise.
    const text_row* step_caption = nullptr;

    /// What the command that ran last noticed; empty at the start of a command.
    std::vector<hint> hints;

    /// The files with entries that nobody saved: of the run, not of the design, so that copies of
    /// the records share it.
    std::shared_ptr<unsaved_work> unsaved = std::make_shared<unsaved_work>();

    /// The programs of others that can be driven; null where there are none. Of the run, as
    /// unsaved.
    std::shared_ptr<automation::host> packages;
    /// What builds models where no package can be driven; null where nothing does. Of the run, too.
    std::shared_ptr<built_in_modeller> modeller;
    /// The CAD package that built the last model. Holding it keeps a package open that was started
    /// for it.
    automation::object_ref driven_package;

    /// The program's folder: settings, recovery, projects. Empty in the batch program, which writes
    /// nothing there.
    std::filesystem::path folder;
    /// The date that reports carry, when it was given; empty: today's date in the short form of the
    /// locale.
    std::string date;
    /// The decimal mark of the system, for what goes into other programs.
    char decimal_mark = '.';
    /// How far the triangles of STL files may lie from their contours, mm.
    double chord_error_mm = DEFAULT_CHORD_ERROR_MM;
};

}  // namespace kvt
