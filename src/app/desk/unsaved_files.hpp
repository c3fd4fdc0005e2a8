// unsaved_files: the files in the program's folder with entries that nobody saved: autosave.KVT,
// recovery.KVT and, where those are taken, autosave-2.KVT, recovery-2.KVT and so on.
#pragma once

#include "base/file_lock.hpp"
#include "base/run_time_error.hpp"
#include "core/project_file.hpp"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

inline constexpr std::string_view AUTOSAVE_NAME = "autosave";
inline constexpr std::string_view RECOVERY_NAME = "recovery";

/// One such file, held by a lock of its own beside it ("autosave.lock"): as long as a running
/// program holds it, no other one offers, replaces or deletes it.
struct held_file {
    std::filesystem::path path;
    file_lock lock;
    bool was_opened = false;  ///< the user has opened it in this run
    std::string bytes;        ///< what this run wrote last
};

/// A free name of that beginning in the folder, held: no file of the name exists and no other
/// program holds it. Nothing when the folder takes no files.
std::optional<held_file> hold_new_file(const std::filesystem::path& folder, std::string_view name);

/// A file that an earlier run has left, held. What can't be read has a failure in place of a
/// record.
struct left_file {
    held_file file;
    std::chrono::system_clock::time_point written;
    std::optional<unsaved_record> record;
    std::optional<run_time_error> unreadable;
};

/// The files of both names that no running program holds, the youngest first.
std::vector<left_file> find_left_files(const std::filesystem::path& folder);

/// Deletes a file and gives its name free.
void delete_file(held_file file);

/// What this run of the desktop program has in the folder, and what it compares the entries with.
struct unsaved_work {
    std::string saved;      ///< the entries as the project's file has them, or as nobody touched
                            ///< them yet; empty when they stand in no file of the user
    std::string autosaved;  ///< the entries that the autosave file holds
    std::string session;    ///< the stretch of work since the last New or Open
    std::optional<held_file> autosave_file;
    std::vector<held_file> of_this_project;  ///< opened or written in this run, with its entries
    std::vector<held_file> declined;         ///< the user did not want to open them
};

}  // namespace kvt
