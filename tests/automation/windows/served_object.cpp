#include "automation/windows/served_object.hpp"

#include "automation/automation_error.hpp"
#include "automation/object.hpp"
#include "automation/windows/served_values.hpp"
#include "base/windows/wide_text.hpp"

#include <algorithm>
#include <oleauto.h>
#include <stdexcept>

namespace kvt::automation {

namespace {

constexpr HRESULT CALL_REJECTED = static_cast<HRESULT>(0x80010001);
/// Asked of an object for the served_object itself. Of no other use.
constexpr IID IID_SERVED = {0x6f3d6a51, 0x2f0b, 0x4d0e, {0x9a, 0x51, 0x4b, 0x56, 0x54, 0, 0, 1}};

/// What arrived with a call.
struct served_call {
    std::string name;
    WORD flags;
    DISPPARAMS* parameters;
    VARIANT* answer;
    EXCEPINFO* exception;

    /// Asked for no result. Wine gives the server a place for one all the same.
    bool is_procedure() const { return flags == DISPATCH_METHOD; }
    bool is_put() const { return (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }
    std::size_t count() const { return parameters->cArgs; }
    /// Arguments in the order in which they are written.
    VARIANT& argument(std::size_t i) const { return parameters->rgvarg[count() - 1 - i]; }
};

void answer_text(const served_call& call, const std::string& text) {
    if (call.answer != nullptr) {
        V_VT(call.answer) = VT_BSTR;
        V_BSTR(call.answer) = SysAllocString(wide_of_utf8(text).c_str());
    }
}

// Members that test the client. Each answers the result of the call.

/// Types of the arguments in order: "R8 BYREF|R8".
HRESULT types(const served_call& call) {
    std::string text;
    for (std::size_t i = 0; i < call.count(); ++i) {
        text += (i == 0 ? "" : " ") + type_name(call.argument(i));
    }
    answer_text(call, text);
    return S_OK;
}

HRESULT echo(const served_call& call) {
    return call.answer == nullptr ? S_OK : VariantCopy(call.answer, &call.argument(0));
}

/// The spreadsheet program's way: a number of the control in scode.
HRESULT raise_scode(const served_call& call) {
    call.exception->scode = V_I4(&call.argument(0));
    call.exception->bstrDescription = SysAllocString(L"Größe außerhalb");
    return DISP_E_EXCEPTION;
}

HRESULT raise_code(const served_call& call) {
    call.exception->wCode = static_cast<WORD>(V_I4(&call.argument(0)));
    return DISP_E_EXCEPTION;
}

HRESULT fail_with(const served_call& call) {
    return V_I4(&call.argument(0));
}

/// Refuses to give a result, as procedures of some programs do.
HRESULT procedure_only(const served_call& call) {
    return call.is_procedure() ? S_OK : DISP_E_MEMBERNOTFOUND;
}

HRESULT two_arguments(const served_call& call) {
    return call.count() == 2 ? S_OK : DISP_E_BADPARAMCOUNT;
}

/// A property that takes an object by value alone.
HRESULT by_value_property(const served_call& call) {
    return (call.flags & DISPATCH_PROPERTYPUT) != 0 ? S_OK : DISP_E_MEMBERNOTFOUND;
}

HRESULT array_by_reference(const served_call& call) {
    return V_ISBYREF(&call.argument(0)) ? types(call) : DISP_E_TYPEMISMATCH;
}

/// Writes a text where an array of numbers is waited for.
HRESULT write_text(const served_call& call) {
    VARIANT& into = *V_VARIANTREF(&call.argument(0));
    V_VT(&into) = VT_BSTR;
    V_BSTR(&into) = SysAllocString(L"1, 2, 3");
    return S_OK;
}

HRESULT put_flags(const served_call& call) {
    const bool named = call.parameters->cNamedArgs == 1 &&
                       call.parameters->rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    return call.is_put() && named ? S_OK : E_INVALIDARG;
}

HRESULT quit(const served_call& /*call*/) {
    PostQuitMessage(0);
    return S_OK;
}

struct own_member {
    const char* name;
    HRESULT (*call)(const served_call&);
};
constexpr own_member OWN_MEMBERS[] = {
    {"Types", types},
    {"Echo", echo},
    {"RaiseScode", raise_scode},
    {"RaiseCode", raise_code},
    {"FailWith", fail_with},
    {"ProcedureOnly", procedure_only},
    {"TwoArguments", two_arguments},
    {"ByValueProperty", by_value_property},
    {"ArrayByReference", array_by_reference},
    {"WriteText", write_text},
    {"PutFlags", put_flags},
    {"Quit", quit},
};
constexpr const char* UNKNOWN_MEMBER = "NoSuchMember";

class served_object final : public IDispatch {
  public:
    served_object(served_program& program, object_ref recorded)
        : program_(program), recorded_(std::move(recorded)) {
        ++program_.objects;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID asked, void** found) override {
        if (asked != IID_IUnknown && asked != IID_IDispatch && asked != IID_SERVED) {
            *found = nullptr;
            return E_NOINTERFACE;
        }
        *found = this;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            ++program_.signs_of_life;
            if (--program_.objects == 0) {
                PostQuitMessage(0);
            }
            delete this;
        }
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* asked, UINT, LCID,
                                            DISPID* id) override {
        const std::string name = utf8_of_wide(asked[0]);
        if (name == UNKNOWN_MEMBER) {
            return DISP_E_UNKNOWNNAME;
        }
        auto place = std::find(program_.names.begin(), program_.names.end(), name);
        if (place == program_.names.end()) {
            place = program_.names.insert(place, name);
        }
        *id = static_cast<DISPID>(place - program_.names.begin()) + 1;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* answer, EXCEPINFO* exception, UINT*) override {
        ++program_.signs_of_life;
        if (program_.rejections > 0) {
            --program_.rejections;
            return CALL_REJECTED;
        }
        if (program_.calls_to_live >= 0 && program_.calls_to_live-- == 0) {
            TerminateProcess(GetCurrentProcess(), 1);
        }
        const served_call call = {program_.names.at(static_cast<std::size_t>(id) - 1), flags,
                                  parameters, answer, exception};
        for (const own_member& member : OWN_MEMBERS) {
            if (call.name == member.name) {
                return member.call(call);
            }
        }
        return record(call);
    }

    /// The recorded object behind one that a client passed back to its server.
    static object_ref behind(IDispatch* passed) {
        served_object* own = nullptr;
        if (passed == nullptr ||
            FAILED(passed->QueryInterface(IID_SERVED, reinterpret_cast<void**>(&own)))) {
            return nullptr;
        }
        object_ref recorded = own->recorded_;
        own->Release();
        return recorded;
    }

  private:
    ~served_object() = default;

    HRESULT record(const served_call& call) {
        try {
            std::vector<std::vector<double>> written(call.count());
            make_call(call, read_arguments(call, written));
            write_arrays(call, written);
            return S_OK;
        } catch (const automation_error& error) {
            call.exception->wCode = static_cast<WORD>(error.number());
            return DISP_E_EXCEPTION;
        } catch (const std::runtime_error&) {
            return DISP_E_TYPEMISMATCH;
        }
    }

    static values read_arguments(const served_call& call,
                                 std::vector<std::vector<double>>& written) {
        values arguments;
        for (std::size_t i = 0; i < call.count(); ++i) {
            if (takes_array(call.argument(i))) {
                arguments.emplace_back(by_reference_numbers{&written[i]});
            } else {
                arguments.push_back(read_argument(call.argument(i), behind));
            }
        }
        return arguments;
    }
    /// In both forms in turn.
    static void write_arrays(const served_call& call,
                             const std::vector<std::vector<double>>& written) {
        for (std::size_t i = 0; i < call.count(); ++i) {
            if (takes_array(call.argument(i))) {
                write_array(written[i], i % 2 == 1, call.argument(i));
            }
        }
    }

    /// Arrays come as those programs give them: regions as variants, copies as objects.
    void make_call(const served_call& call, values arguments) {
        if (call.is_put()) {
            recorded_->put(call.name, std::move(arguments.at(0)));
        } else if (call.is_procedure()) {
            recorded_->run(call.name, std::move(arguments));
        } else {
            const value answer = recorded_->get(call.name, std::move(arguments));
            write_answer(
                answer, [this](const object_ref& one) { return serve(program_, one); },
                call.name == "AddRegion", *call.answer);
        }
    }

    served_program& program_;
    object_ref recorded_;
    ULONG references_ = 1;
};

}  // namespace

IDispatch* serve(served_program& program, const object_ref& recorded) {
    return new served_object(program, recorded);
}

}  // namespace kvt::automation
