// child_process: a program that is started without a window and without a shell.
#pragma once

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace kvt {

/// What a started program is put into: a process group of its own, which can be ended with its
/// children, or a session of its own, which goes on without the program that started it.
enum class process_tie { group, own_session };

/// Starts a program in a folder, standard streams on nothing. Throws path_file_access with the
/// system's reason. Answers what the system knows it by: the process, on Windows the job of a
/// group.
pid_t start_process(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                    const std::filesystem::path& folder, process_tie tie);

/// One program at a time, ended with its own children when its owner goes.
class child_process {
  public:
    child_process() = default;
    ~child_process() { end(); }
    child_process(const child_process&) = delete;
    child_process& operator=(const child_process&) = delete;

    /// Ends the program that runs, then starts another. Throws as start_process.
    void start(const std::filesystem::path& program, const std::vector<std::string>& arguments,
               const std::filesystem::path& folder);
    bool is_running();
    void end();

  private:
    pid_t id_ = 0;  // 0: none, or it has ended
};

}  // namespace kvt
