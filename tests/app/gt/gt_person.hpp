// gt_person: a scripted user that starts programs indeed, and can end a wait.
#pragma once

#include "base/child_process.hpp"
#include "support/scripted_user.hpp"

#include <limits>
#include <thread>

namespace kvt {

class gt_person : public scripted_user {
  public:
    /// So many waits are taken, then Esc is pressed.
    int patience = std::numeric_limits<int>::max();
    int waits = 0;

    void start_tool(const started_tool& tool) override {
        scripted_user::start_tool(tool);
        tool_.start(tool.program, tool.arguments, tool.folder);
    }
    bool is_tool_running() override { return tool_.is_running(); }
    void end_tool() override { tool_.end(); }
    void start_detached(const started_tool& tool) override {
        scripted_user::start_detached(tool);
        start_process(tool.program, tool.arguments, tool.folder, process_tie::own_session);
    }
    bool wait(std::chrono::milliseconds time) override {
        std::this_thread::sleep_for(time);
        return ++waits < patience;
    }

  private:
    child_process tool_;
};

}  // namespace kvt
