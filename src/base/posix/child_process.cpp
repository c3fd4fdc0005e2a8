#include "base/child_process.hpp"

#include "base/path_text.hpp"
#include "base/run_time_error.hpp"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kvt {

namespace {

/// What posix_spawn gets beside the program; released with its owner.
class spawn_settings {
  public:
    spawn_settings(const std::filesystem::path& folder, process_tie tie) {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setflags(
            &attributes, tie == process_tie::group ? POSIX_SPAWN_SETPGROUP : POSIX_SPAWN_SETSID);
        posix_spawnattr_setpgroup(&attributes, 0);
    }
    ~spawn_settings() {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    spawn_settings(const spawn_settings&) = delete;
    spawn_settings& operator=(const spawn_settings&) = delete;

    posix_spawn_file_actions_t actions{};
    posix_spawnattr_t attributes{};
};

}  // namespace

pid_t start_process(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                    const std::filesystem::path& folder, process_tie tie) {
    std::string name = utf8_of_path(program);
    std::vector<std::string> texts = arguments;
    std::vector<char*> line = {name.data()};
    for (std::string& text : texts) {
        line.push_back(text.data());
    }
    line.push_back(nullptr);
    const spawn_settings settings(folder, tie);
    pid_t id = 0;
    const int failed = posix_spawn(&id, name.c_str(), &settings.actions, &settings.attributes,
                                   line.data(), environ);
    if (failed != 0) {
        throw run_time_error(failure::path_file_access, name, {file_fault::reason::system, failed});
    }
    return id;
}

void child_process::start(const std::filesystem::path& program,
                          const std::vector<std::string>& arguments,
                          const std::filesystem::path& folder) {
    end();
    id_ = start_process(program, arguments, folder, process_tie::group);
}

bool child_process::is_running() {
    if (id_ != 0 && ::waitpid(id_, nullptr, WNOHANG) != 0) {
        id_ = 0;
    }
    return id_ != 0;
}

void child_process::end() {
    if (is_running()) {
        ::kill(-id_, SIGKILL);
        ::waitpid(id_, nullptr, 0);
        id_ = 0;
    }
}

}  // namespace kvt
