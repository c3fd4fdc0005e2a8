// The busy filter, the apartment, members by name, running and new programs.
#include "automation/com_host.hpp"

#include "automation/automation_error.hpp"
#include "automation/object.hpp"
#include "automation/windows/variant.hpp"
#include "base/windows/wide_text.hpp"

#include <chrono>
#include <map>
#include <objbase.h>
#include <oleauto.h>

namespace kvt::automation {

namespace {

/// A modal dialog in the other program can stay open for ever.
constexpr std::chrono::milliseconds PATIENCE = std::chrono::seconds(30);
constexpr std::chrono::milliseconds PAUSE(100);

/// Names and texts are those of US English, whatever the user's language: spreadsheet programs
/// refuse others, or read formulas in them.
constexpr LCID US_ENGLISH = 0x0409;

// ObjIdl's names are missing in some compilers' headers.
constexpr HRESULT CALL_REJECTED = static_cast<HRESULT>(0x80010001);
constexpr HRESULT RETRY_LATER = static_cast<HRESULT>(0x8001010A);

bool is_busy(HRESULT answered) {
    return answered == CALL_REJECTED || answered == RETRY_LATER;
}

/// Calls again while the other program is busy. What the filter below waits counts, too.
template <typename function>
HRESULT patiently(const function& call) {
    const auto until = std::chrono::steady_clock::now() + PATIENCE;
    HRESULT answered = call();
    while (is_busy(answered) && std::chrono::steady_clock::now() < until) {
        Sleep(static_cast<DWORD>(PAUSE.count()));
        answered = call();
    }
    return answered;
}

/// Asked by the system when another program rejects a call.
class busy_filter final : public IMessageFilter {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID asked, void** found) override {
        const bool known = asked == IID_IUnknown || asked == IID_IMessageFilter;
        *found = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    // It lives as long as its apartment.
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
        return SERVERCALL_ISHANDLED;
    }
    /// How many milliseconds later the call is repeated; all bits: never.
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD waited, DWORD) override {
        return waited < static_cast<DWORD>(PATIENCE.count()) ? static_cast<DWORD>(PAUSE.count())
                                                             : static_cast<DWORD>(-1);
    }
    DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override {
        return PENDINGMSG_WAITDEFPROCESS;
    }
};

/// This thread's part of the system's calls between programs; each object holds it.
class apartment {
  public:
    apartment() {
        const HRESULT entered = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        if (FAILED(entered)) {
            throw error_of(entered, "apartment");
        }
        CoRegisterMessageFilter(&filter_, &earlier_filter_);
    }
    ~apartment() {
        CoRegisterMessageFilter(earlier_filter_, nullptr);
        if (earlier_filter_ != nullptr) {
            earlier_filter_->Release();
        }
        CoUninitialize();
    }
    apartment(const apartment&) = delete;
    apartment& operator=(const apartment&) = delete;

  private:
    busy_filter filter_;
    IMessageFilter* earlier_filter_ = nullptr;
};

using apartment_ref = std::shared_ptr<apartment>;

std::string described(std::string_view name, BSTR description) {
    std::string text(name);
    if (description != nullptr) {
        text += ": " + utf8_of_wide({description, SysStringLen(description)});
    }
    return text;
}

/// What the other program says of its own error.
class exception_report {
  public:
    ~exception_report() {
        SysFreeString(info_.bstrSource);
        SysFreeString(info_.bstrDescription);
        SysFreeString(info_.bstrHelpFile);
    }

    EXCEPINFO* get() { return &info_; }
    automation_error error(std::string_view name) {
        if (info_.pfnDeferredFillIn != nullptr) {
            info_.pfnDeferredFillIn(&info_);
        }
        const std::string detail = described(name, info_.bstrDescription);
        if (info_.wCode != 0) {
            return {info_.wCode, DISP_E_EXCEPTION, detail};
        }
        return error_of(info_.scode, detail);
    }

  private:
    EXCEPINFO info_ = {};
};

/// An object of another program.
class com_object final : public object {
  public:
    com_object(apartment_ref entered, IDispatch* dispatch)
        : apartment_(std::move(entered)), dispatch_(dispatch) {}
    ~com_object() override { dispatch_->Release(); }
    com_object(const com_object&) = delete;
    com_object& operator=(const com_object&) = delete;

    value get(std::string_view name, values arguments) override {
        variant answer;
        invoke(name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, &answer.get());
        return value_of(answer.get(), [this](IDispatch* found) -> object_ref {
            return std::make_shared<com_object>(apartment_, found);
        });
    }

    /// Servers refuse to give a result of a procedure.
    void run(std::string_view name, values arguments) override {
        invoke(name, DISPATCH_METHOD, arguments, nullptr);
    }

    /// An object goes by reference first.
    void put(std::string_view name, value new_value) override {
        const bool is_object = std::holds_alternative<object_ref>(new_value);
        const values arguments = {std::move(new_value)};
        if (is_object && try_put_reference(name, arguments)) {
            return;
        }
        invoke(name, DISPATCH_PROPERTYPUT, arguments, nullptr);
    }

    static IDispatch* dispatch_behind(object& one) {
        auto* own = dynamic_cast<com_object*>(&one);
        if (own == nullptr) {
            throw error_of(DISP_E_TYPEMISMATCH, "object of another host");
        }
        return own->dispatch_;
    }

  private:
    bool try_put_reference(std::string_view name, const values& arguments) {
        try {
            invoke(name, DISPATCH_PROPERTYPUTREF, arguments, nullptr);
            return true;
        } catch (const automation_error& error) {
            if (error.hresult != DISP_E_MEMBERNOTFOUND) {
                throw;
            }
            return false;
        }
    }

    /// Asked once a name: each question goes to the other program and back.
    DISPID id_of(std::string_view name) {
        const auto known = ids_.find(name);
        return known != ids_.end() ? known->second
                                   : ids_.emplace(name, asked_id(name)).first->second;
    }

    DISPID asked_id(std::string_view name) {
        std::wstring wide = wide_of_utf8(name);
        LPOLESTR asked = wide.data();
        DISPID id = DISPID_UNKNOWN;
        const HRESULT found = patiently(
            [&] { return dispatch_->GetIDsOfNames(IID_NULL, &asked, 1, US_ENGLISH, &id); });
        if (FAILED(found)) {
            throw error_of(found, std::string(name));
        }
        return id;
    }

    /// Arrays go by reference where the member takes them in no other way.
    void invoke(std::string_view name, WORD flags, const values& arguments, VARIANT* answer) {
        const DISPID id = id_of(name);
        call_arguments passed(arguments, dispatch_behind, array_passing::by_value);
        exception_report report;
        HRESULT answered = call(id, flags, passed, answer, report);
        if (answered == DISP_E_TYPEMISMATCH && passed.holds_arrays()) {
            call_arguments again(arguments, dispatch_behind, array_passing::by_reference);
            answered = call(id, flags, again, answer, report);
        }
        if (answered == DISP_E_EXCEPTION) {
            throw report.error(name);
        }
        if (FAILED(answered)) {
            throw error_of(answered, std::string(name));
        }
    }

    HRESULT call(DISPID id, WORD flags, call_arguments& arguments, VARIANT* answer,
                 exception_report& report) {
        DISPPARAMS passed = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        DISPID new_value = DISPID_PROPERTYPUT;
        if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
            passed.rgdispidNamedArgs = &new_value;
            passed.cNamedArgs = 1;
        }
        const HRESULT answered = patiently([&] {
            UINT wrong_argument = 0;
            return dispatch_->Invoke(id, IID_NULL, US_ENGLISH, flags, &passed, answer, report.get(),
                                     &wrong_argument);
        });
        if (SUCCEEDED(answered)) {
            arguments.take_written();
        }
        return answered;
    }

    apartment_ref apartment_;
    IDispatch* dispatch_;
    std::map<std::string, DISPID, std::less<>> ids_;
};

bool find_class(std::string_view class_name, CLSID& id) {
    return SUCCEEDED(CLSIDFromProgID(wide_of_utf8(class_name).c_str(), &id));
}

class running_programs final : public host {
  public:
    object_ref running(std::string_view class_name) override {
        CLSID id = {};
        IUnknown* unknown = nullptr;
        // It may be found and be no object.
        if (!find_class(class_name, id) || FAILED(GetActiveObject(id, nullptr, &unknown)) ||
            unknown == nullptr) {
            return nullptr;
        }
        IDispatch* application = nullptr;
        const HRESULT found =
            unknown->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&application));
        unknown->Release();
        return SUCCEEDED(found) ? std::make_shared<com_object>(apartment_, application) : nullptr;
    }

    object_ref create(std::string_view class_name) override {
        CLSID id = {};
        void* application = nullptr;
        HRESULT made = CLSIDFromProgID(wide_of_utf8(class_name).c_str(), &id);
        if (SUCCEEDED(made)) {
            made = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                    IID_IDispatch, &application);
        }
        if (FAILED(made)) {
            throw automation_error(NOT_CREATED, made, std::string(class_name));
        }
        return std::make_shared<com_object>(apartment_, static_cast<IDispatch*>(application));
    }

  private:
    apartment_ref apartment_ = std::make_shared<apartment>();
};

}  // namespace

std::unique_ptr<host> com_host() {
    return std::make_unique<running_programs>();
}

}  // namespace kvt::automation
