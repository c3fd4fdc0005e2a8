// registered_server: the recording server under a class name, as long as a test lasts.
#pragma once

#include "base/child_process.hpp"
#include "base/path_text.hpp"
#include "base/whole_file.hpp"
#include "support/temporary_folder.hpp"

#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace kvt::automation {

class registered_server {
  public:
    explicit registered_server(std::string class_name, std::vector<std::string> options = {})
        : class_name_(std::move(class_name)), options_(std::move(options)) {
        call("register");
    }
    ~registered_server() { call("unregister"); }
    registered_server(const registered_server&) = delete;
    registered_server& operator=(const registered_server&) = delete;

    /// Starts it before anybody asks for it.
    void start() { start("serve", running_); }
    bool is_running() { return running_.is_running(); }

    /// What it wrote down. It does so when the last of its objects is gone.
    std::string log() const {
        wait([this] { return std::filesystem::exists(log_file()); });
        return read_file(log_file());
    }
    bool has_log() const { return std::filesystem::exists(log_file()); }

    template <typename condition>
    static void wait(const condition& done) {
        // Longer than the server rests when it has lost its client.
        constexpr int TRIES = 3000;
        for (int i = 0; i < TRIES && !done(); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
    }

  private:
    std::filesystem::path log_file() const { return folder_ / "calls.log"; }
    void start(const std::string& action, child_process& process) const {
        std::vector<std::string> arguments = {action, class_name_, utf8_of_path(log_file())};
        arguments.insert(arguments.end(), options_.begin(), options_.end());
        process.start(std::filesystem::absolute(KVT_RECORDING_SERVER), arguments, folder_.path());
    }
    void call(const std::string& action) const {
        child_process process;
        start(action, process);
        wait([&] { return !process.is_running(); });
    }

    std::string class_name_;
    std::vector<std::string> options_;
    temporary_folder folder_;
    child_process running_;
};

}  // namespace kvt::automation
