// autosave: changed entries go to a project of their own in the program's folder, so do those of a
// failure that ends the program, and both are offered at the next start.
#pragma once

#include <filesystem>

namespace kvt {

class user;
struct program;

/// The time between two calls of autosave, milliseconds; the first comes after the start prompt has
/// closed.
inline constexpr int AUTOSAVE_INTERVAL_MS = 30000;

/// The entries stand in a file of the user, or are untouched: after New and Open. Files with
/// unsaved entries of the project before stay in the folder and are offered at the next start, but
/// for its autosave, which the next one replaces.
void note_new_entries(program& kavetta);

/// The entries have just been saved: the autosave and every file of this project that was opened or
/// written in this run is deleted.
void note_saved_entries(program& kavetta);

/// True when the entries are neither those of the project's file nor untouched.
bool has_unsaved_changes(const program& kavetta);

/// Writes autosave.KVT in the program's folder when the entries have changed since the last call,
/// under another number while a file of that name is another run's. Deletes it when they are saved
/// and have not changed since. True when it was written; a file that can't be written is tried
/// again at the next call. Nothing else changes, no file of the user.
bool autosave(program& kavetta);

/// Writes the entries to recovery.KVT in the program's folder and returns its path; empty when even
/// that fails. A file of that name that the user has not opened stays: the next number is taken,
/// unless it is of this run and has the same entries. The autosave goes, since it says no more.
std::filesystem::path save_recovery(const program& kavetta);

/// The program ends in order: what this run wrote, opened or was not wanted is deleted.
void forget_unsaved_entries(const program& kavetta);

/// At the start: asks for each file that an earlier run has left, the youngest first, whether to
/// open it, and goes on with the older ones after No. Of one stretch of work the youngest alone is
/// asked for. The entries come in as they were typed, but without a file (Save then asks for one,
/// in the folder of their project) and without an entry in the recent list. A file that can't be
/// read is told in the status bar, and the next one offered. True when one was opened.
bool offer_unsaved_entries(program& kavetta, user& person);

}  // namespace kvt
