// tool_starter: programs of others that a command starts and waits for.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace kvt {

/// A program with its arguments, UTF-8, and the folder in which it runs.
struct started_tool {
    std::filesystem::path program;
    std::vector<std::string> arguments;
    std::filesystem::path folder;
};

class tool_starter {
  public:
    virtual ~tool_starter() = default;

    /// Starts a program hidden; what it prints is dropped. Throws path_file_access when it can't
    /// be started.
    virtual void start_tool(const started_tool& tool) = 0;
    /// Whether the program started last still runs.
    virtual bool is_tool_running() = 0;
    /// Ends that program; nothing happens when it has ended.
    virtual void end_tool() = 0;
    /// Starts a program that goes on when this one ends. Throws as start_tool.
    virtual void start_detached(const started_tool& tool) = 0;
    /// Lets some time pass while progress is shown. False when the person ends the wait.
    virtual bool wait(std::chrono::milliseconds time) = 0;
};

}  // namespace kvt
