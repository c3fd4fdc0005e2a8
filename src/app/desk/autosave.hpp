// autosave: changed entries go to a project of their own in the program's folder, and are offered
// at the next start when the program didn't end in order.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace kvt {

class user;
struct program;

inline constexpr std::string_view AUTOSAVE_FILE_NAME = "autosave.KVT";

/// The time between two calls of autosave, milliseconds; the first comes after the start prompt has
/// closed.
inline constexpr int AUTOSAVE_INTERVAL_MS = 30000;

/// Takes the present entries as unchanged: after the start, with what New or Open at the prompt
/// left.
void start_autosave(program& kavetta);

/// Writes autosave.KVT in the program's folder when the entries have changed since the last call.
/// True when it was written; a file that can't be written is tried again at the next call. Nothing
/// else changes, no file of the user.
bool autosave(program& kavetta);

/// Deletes autosave.KVT and recovery.KVT: the program ends in order.
void forget_unsaved_entries(const program& kavetta);

/// The younger one of autosave.KVT and recovery.KVT, or nothing.
std::optional<std::filesystem::path> unsaved_entries(const program& kavetta);

/// At the start: when unsaved entries exist, asks once whether to open them. They come in like
/// those of a project, but without a file (Save then asks for one) and without an entry in the
/// recent list. True when they were opened; one that can't be read is told in the status bar.
bool offer_unsaved_entries(program& kavetta, user& person);

}  // namespace kvt
