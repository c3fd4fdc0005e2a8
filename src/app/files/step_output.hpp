// The STEP entries of the menu and the STEP files of the simulation exchange.
#pragma once

#include "base/text_file.hpp"

#include <string>
#include <string_view>

namespace kvt {

class user;
struct program;

/// The last four are the single bodies of the simulation exchange, whose names are fixed.
enum class step_file { inner, outer, assembly, ports, gt_inner, gt_outer, gt_inlet, gt_outlet };

inline constexpr step_file STEP_FILES[] = {step_file::inner, step_file::outer, step_file::assembly,
                                           step_file::ports};
inline constexpr step_file GT_STEP_FILES[] = {step_file::gt_inner, step_file::gt_outer,
                                              step_file::gt_inlet, step_file::gt_outlet};

/// "inner", "outer", "assembly", "ports", "inner_rotor_GT", "outer_rotor_GT", "in_port_GT",
/// "out_port_GT".
std::string_view step_file_name(step_file file);

/// The whole file from the records of the last run, with the path in its header and the date of
/// program::date, else today's. A run-time failure leaves the lines before it in the text.
void append_step_file(text_lines& out, step_file file, const program& kavetta,
                      const std::string& path);

/// A click on the entry of the menu: save dialog, then the file as far as its writer got.
void save_step_file(const program& kavetta, user& person, step_file file);

/// The files of the simulation exchange, without a dialog, under their names in a folder.
/// Throws the failure of a writer, whose file is saved as far as it got, or path_not_found or
/// path_file_access.
void write_gt_step_files(const program& kavetta, const std::string& folder);

}  // namespace kvt
