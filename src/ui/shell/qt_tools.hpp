// qt_tools: the programs that a command starts, watched by the event loop.
#pragma once

#include "core/tool_starter.hpp"

#include <QProcess>

namespace kvt {

class qt_tools {
  public:
    qt_tools();
    ~qt_tools();
    qt_tools(const qt_tools&) = delete;
    qt_tools& operator=(const qt_tools&) = delete;

    /// As the interface says; throws path_file_access.
    void start(const started_tool& tool);
    bool is_running() const { return process_.state() != QProcess::NotRunning; }
    /// Ends the program with what it has started.
    void end();

  private:
    QProcess process_;
};

/// Starts a program that goes on when this one ends. Throws path_file_access.
void start_detached_tool(const started_tool& tool);

}  // namespace kvt
