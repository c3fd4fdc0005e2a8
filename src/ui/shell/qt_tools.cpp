#include "ui/shell/qt_tools.hpp"

#include "base/run_time_error.hpp"
#include "ui/shell/qt_text.hpp"

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif

namespace kvt {

namespace {

void describe(QProcess& process, const started_tool& tool) {
    QStringList arguments;
    for (const std::string& argument : tool.arguments) {
        arguments.append(qt_text(argument));
    }
    process.setProgram(qt_text(tool.program.string()));
    process.setArguments(arguments);
    process.setWorkingDirectory(qt_text(tool.folder.string()));
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
}

void check_started(bool started, const started_tool& tool) {
    if (!started) {
        throw run_time_error(failure::path_file_access, tool.program.string());
    }
}

}  // namespace

qt_tools::qt_tools() {
#ifdef Q_OS_UNIX
    // A group of its own, so that it can be ended with its children.
    process_.setChildProcessModifier([] { ::setpgid(0, 0); });
#endif
}

qt_tools::~qt_tools() {
    end();
}

void qt_tools::start(const started_tool& tool) {
    end();
    describe(process_, tool);
    process_.start();
    check_started(process_.waitForStarted(), tool);
}

void qt_tools::end() {
    if (!is_running()) {
        return;
    }
#ifdef Q_OS_UNIX
    ::kill(static_cast<pid_t>(-process_.processId()), SIGKILL);
#endif
    process_.kill();
    process_.waitForFinished();
}

void start_detached_tool(const started_tool& tool) {
    QProcess process;
    describe(process, tool);
    check_started(process.startDetached(), tool);
}

}  // namespace kvt
