// Programs in jobs: one that is ended takes the programs with it that it has started.
#include "base/child_process.hpp"

#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/windows/wide_text.hpp"

#include <system_error>
#include <windows.h>

namespace kvt {

namespace {

/// An argument as the other program's start-up reads it back. One with blanks or quotation marks is
/// quoted: a backslash before each mark, twice as many backslashes in front of a mark or of the
/// end. The command processor takes others as they are.
std::wstring quoted(const std::wstring& argument) {
    if (!argument.empty() && argument.find_first_of(L" \t\"") == std::wstring::npos) {
        return argument;
    }
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : argument) {
        if (c == L'"') {
            text.append(backslashes + 1, L'\\');
        }
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text.append(backslashes, L'\\') + L'"';
}

std::wstring command_line(const std::filesystem::path& program,
                          const std::vector<std::string>& arguments) {
    std::wstring line = quoted(program.wstring());
    for (const std::string& argument : arguments) {
        line += L" " + quoted(wide_of_utf8(argument));
    }
    return line;
}

[[noreturn]] void fail(const std::filesystem::path& program) {
    const int error = static_cast<int>(GetLastError());
    throw run_time_error(failure::path_file_access, utf8_of_path(program),
                         {file_fault::reason::system,
                          std::system_category().default_error_condition(error).value()});
}

/// A job whose programs end with its last handle.
HANDLE make_job() {
    const HANDLE job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

HANDLE job_of(pid_t id) {
    return reinterpret_cast<HANDLE>(id);  // NOLINT(performance-no-int-to-ptr): made of a handle
}

}  // namespace

pid_t start_process(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                    const std::filesystem::path& folder, process_tie tie) {
    std::wstring line = command_line(program, arguments);
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION started = {};
    // Suspended, so that it starts nothing before it is in its job.
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE,
                       CREATE_NO_WINDOW | CREATE_SUSPENDED, nullptr,
                       folder.empty() ? nullptr : folder.c_str(), &start, &started) == 0) {
        fail(program);
    }
    pid_t id = started.dwProcessId;
    if (tie == process_tie::group) {
        const HANDLE job = make_job();
        AssignProcessToJobObject(job, started.hProcess);
        id = reinterpret_cast<pid_t>(job);
    }
    ResumeThread(started.hThread);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return id;
}

void child_process::start(const std::filesystem::path& program,
                          const std::vector<std::string>& arguments,
                          const std::filesystem::path& folder) {
    end();
    id_ = start_process(program, arguments, folder, process_tie::group);
}

bool child_process::is_running() {
    JOBOBJECT_BASIC_ACCOUNTING_INFORMATION job = {};
    if (id_ != 0) {
        QueryInformationJobObject(job_of(id_), JobObjectBasicAccountingInformation, &job,
                                  sizeof job, nullptr);
    }
    return job.ActiveProcesses > 0;
}

void child_process::end() {
    if (id_ != 0) {
        TerminateJobObject(job_of(id_), 1);
        CloseHandle(job_of(id_));
        id_ = 0;
    }
}

}  // namespace kvt
