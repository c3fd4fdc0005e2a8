// recording_server: a program that other programs start and call by late binding. It writes down
// every call in the lines of the recorder, into a file that appears when it ends.
//
// recording_server register CLASS-NAME LOG-FILE [OPTION]...    from then on CLASS-NAME starts it
// recording_server unregister CLASS-NAME
// recording_server serve CLASS-NAME LOG-FILE [OPTION]...       it runs before anybody asks for it
// OPTION: busy=N: the first N calls of members are rejected; dies=N: it ends in place of call N +
// 1; running: it says that it runs, and ends when its member Quit is called
#include "automation/windows/served_object.hpp"
#include "base/environment.hpp"
#include "base/path_text.hpp"
#include "base/whole_file.hpp"
#include "base/windows/wide_text.hpp"

#include <algorithm>
#include <iostream>
#include <objbase.h>
#include <oleauto.h>

namespace kvt::automation {

namespace {

using texts = std::vector<std::string>;

/// The class of every name; only one name is registered at a time.
constexpr CLSID SERVED_CLASS = {
    0x6f3d6a51, 0x2f0b, 0x4d0e, {0x9a, 0x51, 0x4b, 0x56, 0x54, 0, 0, 2}};

std::wstring class_text() {
    wchar_t text[64] = {};
    StringFromGUID2(SERVED_CLASS, text, 64);
    return text;
}

bool set_key(const std::wstring& key, const std::wstring& text) {
    HKEY opened = nullptr;
    if (RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &opened,
                        nullptr) != ERROR_SUCCESS) {
        return false;
    }
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    const LSTATUS set = RegSetValueExW(opened, nullptr, 0, REG_SZ,
                                       reinterpret_cast<const BYTE*>(text.c_str()), size);
    RegCloseKey(opened);
    return set == ERROR_SUCCESS;
}

/// Arguments are quoted as they are: none of them has a quotation mark.
std::wstring server_command(const texts& arguments) {
    std::wstring command = L"\"" + running_program().wstring() + L"\" serve";
    for (const std::string& argument : arguments) {
        command += L" \"" + wide_of_utf8(argument) + L"\"";
    }
    return command;
}

/// arguments: class name, log file, options.
bool add_class(const texts& arguments) {
    const std::wstring name = wide_of_utf8(arguments.at(0));
    const std::wstring class_key = L"CLSID\\" + class_text();
    return set_key(name, name) && set_key(name + L"\\CLSID", class_text()) &&
           set_key(class_key, name) && set_key(class_key + L"\\ProgID", name) &&
           set_key(class_key + L"\\LocalServer32", server_command(arguments));
}

bool remove_class(const texts& arguments) {
    const std::wstring name = wide_of_utf8(arguments.at(0));
    RegDeleteTreeW(HKEY_CLASSES_ROOT, (L"CLSID\\" + class_text()).c_str());
    return RegDeleteTreeW(HKEY_CLASSES_ROOT, name.c_str()) == ERROR_SUCCESS;
}

/// Gives out the application object, once: the next client gets a server of its own.
class class_factory final : public IClassFactory {
  public:
    explicit class_factory(IDispatch* application) : application_(application) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID asked, void** found) override {
        const bool known = asked == IID_IUnknown || asked == IID_IClassFactory;
        *found = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    // It lives as long as the process.
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    /// From then on the client alone keeps the application, and with it the process.
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID asked, void** found) override {
        const HRESULT given = application_->QueryInterface(asked, found);
        application_->Release();
        return given;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

  private:
    IDispatch* application_;
};

void take_option(served_program& program, const std::string& option) {
    const int number = std::atoi(option.substr(option.find('=') + 1).c_str());
    if (option.starts_with("busy=")) {
        program.rejections = number;
    } else if (option.starts_with("dies=")) {
        program.calls_to_live = number;
    }
}

/// Until the last object is gone. A client that was killed, or a reference that got lost on the
/// way, must not keep the server: it ends after a while without a sign of life, too. On a busy
/// machine a client calculates, or gives up thousands of objects, for many seconds.
void serve_calls(const served_program& program) {
    constexpr UINT LONGEST_REST_MS = 30000;
    SetTimer(nullptr, 0, LONGEST_REST_MS, nullptr);
    long signs_before = 0;
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_TIMER && program.signs_of_life == signs_before) {
            return;
        }
        if (message.message == WM_TIMER) {
            signs_before = program.signs_of_life;
        }
        DispatchMessageW(&message);
    }
}

int serve_class(const texts& arguments) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    served_program program;
    for (const std::string& option : arguments) {
        take_option(program, option);
    }
    // What a client sees of it before it is created.
    static_cast<void>(program.recorder.running(arguments.at(0)));
    IDispatch* application = serve(program, program.recorder.create(arguments.at(0)));
    class_factory factory(application);
    DWORD registered = 0;
    DWORD active = 0;
    if (std::ranges::find(arguments, "running") != arguments.end()) {
        RegisterActiveObject(application, SERVED_CLASS, ACTIVEOBJECT_STRONG, &active);
    }
    if (FAILED(CoRegisterClassObject(SERVED_CLASS, &factory, CLSCTX_LOCAL_SERVER, REGCLS_SINGLEUSE,
                                     &registered))) {
        return 1;
    }
    serve_calls(program);
    if (active != 0) {
        RevokeActiveObject(active, nullptr);
    }
    CoRevokeClassObject(registered);
    write_file(path_of_utf8(arguments.at(1)), program.recorder.log(log_length::full));
    CoUninitialize();
    return 0;
}

int run(texts arguments) {
    if (arguments.size() < 2) {
        std::cerr << "usage: recording_server register|unregister CLASS-NAME [LOG-FILE]\n";
        return 2;
    }
    const std::string action = arguments.front();
    arguments.erase(arguments.begin());
    if (action == "serve") {
        return serve_class(arguments);
    }
    return (action == "register" ? add_class(arguments) : remove_class(arguments)) ? 0 : 1;
}

}  // namespace

}  // namespace kvt::automation

int main(int argc, char** argv) {
    std::vector<std::string> arguments = kvt::program_arguments(argc, argv);
    arguments.erase(arguments.begin());
    return kvt::automation::run(std::move(arguments));
}
