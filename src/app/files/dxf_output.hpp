// The DXF entries of the menu: which files there are, their save dialogs, their saving.
#pragma once

#include "base/text_file.hpp"

#include <string_view>

namespace kvt {

class user;
struct program;

enum class dxf_file { inner, outer, inlet, outlet, groove };

inline constexpr dxf_file DXF_FILES[] = {dxf_file::inner, dxf_file::outer, dxf_file::inlet,
                                         dxf_file::outlet, dxf_file::groove};

/// "inner", "outer", "inlet", "outlet", "groove".
std::string_view dxf_file_name(dxf_file file);

/// The whole file from the records of the last run; the outer rotor from the boxes as they stand. A
/// run-time failure leaves the lines before it in the text.
void append_dxf_file(text_lines& out, dxf_file file, const program& kavetta);

/// A click on the entry of the menu: save dialog, then the file as far as its writer got.
void save_dxf_file(const program& kavetta, user& person, dxf_file file);

/// The menu mnudxf opens: mnudxfmetering can be used while metering_groove is ticked.
void open_dxf_menu(program& kavetta);

}  // namespace kvt
