#include "automation/windows/variant.hpp"

#include "automation/automation_error.hpp"
#include "base/windows/wide_text.hpp"

#include <cassert>
#include <cstdint>
#include <limits>
#include <oleauto.h>

namespace kvt::automation {

namespace {

void require(HRESULT done, const char* what) {
    if (FAILED(done)) {
        throw error_of(done, what);
    }
}

/// For functions that only read, but don't say so.
VARIANT* not_const(const VARIANT& read) {
    return const_cast<VARIANT*>(&read);
}

BSTR text_of(const std::string& utf8) {
    const std::wstring wide = wide_of_utf8(utf8);
    return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

std::string utf8_of(BSTR text) {
    return text == nullptr ? std::string() : utf8_of_wide({text, SysStringLen(text)});
}

/// The elements of an array, as long as they may be touched.
template <typename element>
class array_elements {
  public:
    explicit array_elements(SAFEARRAY* array) : array_(array) {
        void* first = nullptr;
        require(SafeArrayAccessData(array_, &first), "elements of an array");
        first_ = static_cast<element*>(first);
    }
    ~array_elements() { SafeArrayUnaccessData(array_); }
    array_elements(const array_elements&) = delete;
    array_elements& operator=(const array_elements&) = delete;

    element& operator[](std::size_t i) { return first_[i]; }

  private:
    SAFEARRAY* array_;
    element* first_ = nullptr;
};

/// Puts an empty array of a type into a VARIANT, which owns it.
SAFEARRAY* make_array(VARIANT& in, VARTYPE type, std::vector<SAFEARRAYBOUND> bounds) {
    SAFEARRAY* array = SafeArrayCreate(type, static_cast<UINT>(bounds.size()), bounds.data());
    require(array == nullptr ? E_OUTOFMEMORY : S_OK, "array");
    V_VT(&in) = static_cast<VARTYPE>(VT_ARRAY | type);
    V_ARRAY(&in) = array;
    return array;
}

SAFEARRAYBOUND from_0(std::size_t count) {
    return {static_cast<ULONG>(count), 0};
}
SAFEARRAYBOUND from_1(std::size_t count) {
    return {static_cast<ULONG>(count), 1};
}

/// Fills an empty VARIANT from one of the alternatives of a value.
class variant_filler {
  public:
    variant_filler(VARIANT& filled, const dispatch_of& dispatch)
        : filled_(filled), dispatch_(dispatch) {}

    void operator()(std::monostate) const {}
    void operator()(bool truth) const {
        V_VT(&filled_) = VT_BOOL;
        V_BOOL(&filled_) = truth ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(std::int32_t number) const {
        V_VT(&filled_) = VT_I4;
        V_I4(&filled_) = number;
    }
    void operator()(double number) const {
        V_VT(&filled_) = VT_R8;
        V_R8(&filled_) = number;
    }
    void operator()(const std::string& text) const {
        V_VT(&filled_) = VT_BSTR;
        V_BSTR(&filled_) = text_of(text);
    }
    void operator()(const object_ref& object) const {
        V_VT(&filled_) = VT_DISPATCH;
        V_DISPATCH(&filled_) = referred(object);
    }
    void operator()(nothing) const { (*this)(object_ref()); }
    void operator()(omitted) const {
        V_VT(&filled_) = VT_ERROR;
        V_ERROR(&filled_) = DISP_E_PARAMNOTFOUND;
    }
    void operator()(by_reference number) const {
        V_VT(&filled_) = VT_BYREF | VT_R8;
        V_R8REF(&filled_) = number.target;
    }
    /// Stays empty: what is passed refers to it, and the call fills it.
    void operator()(by_reference_numbers) const {}
    void operator()(const number_array& array) const {
        const std::size_t count = array.numbers.size();
        array_elements<double> elements(make_array(filled_, VT_R8, {from_0(count)}));
        for (std::size_t i = 0; i < count; ++i) {
            elements[i] = array.numbers[i];
        }
    }
    void operator()(const object_array& array) const {
        const std::size_t count = array.objects.size();
        array_elements<IDispatch*> elements(make_array(filled_, VT_DISPATCH, {from_0(count)}));
        for (std::size_t i = 0; i < count; ++i) {
            elements[i] = referred(array.objects[i]);
        }
    }
    void operator()(const variant_array& array) const {
        const std::size_t count = array.objects.size();
        array_elements<VARIANT> elements(make_array(filled_, VT_VARIANT, {from_0(count)}));
        for (std::size_t i = 0; i < count; ++i) {
            variant_filler(elements[i], dispatch_)(array.objects[i]);
        }
    }
    void operator()(const table& cells) const {
        assert(cells.cells.size() == cells.rows * cells.columns);
        array_elements<VARIANT> elements(
            make_array(filled_, VT_VARIANT, {from_1(cells.rows), from_1(cells.columns)}));
        for (std::size_t row = 0; row < cells.rows; ++row) {
            for (std::size_t column = 0; column < cells.columns; ++column) {
                // The first index runs fastest.
                variant_filler filler(elements[row + column * cells.rows], dispatch_);
                std::visit(filler, cells.cells[row * cells.columns + column]);
            }
        }
    }

  private:
    /// With a reference of its own.
    IDispatch* referred(const object_ref& object) const {
        if (object == nullptr) {
            return nullptr;
        }
        IDispatch* found = dispatch_(*object);
        found->AddRef();
        return found;
    }

    VARIANT& filled_;
    const dispatch_of& dispatch_;
};

/// A VARIANT that refers to the array of another one.
VARIANT reference_to(VARIANT& array) {
    VARIANT reference;
    VariantInit(&reference);
    V_VT(&reference) = static_cast<VARTYPE>(V_VT(&array) | VT_BYREF);
    V_ARRAYREF(&reference) = &V_ARRAY(&array);
    return reference;
}

/// A VARIANT that refers to the whole of another one.
VARIANT reference_to_variant(VARIANT& whole) {
    VARIANT reference;
    VariantInit(&reference);
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &whole;
    return reference;
}

std::size_t element_count(SAFEARRAY* array) {
    LONG first = 0;
    LONG last = -1;
    require(SafeArrayGetDim(array) == 1 ? S_OK : DISP_E_TYPEMISMATCH, "answered array");
    require(SafeArrayGetLBound(array, 1, &first), "answered array");
    require(SafeArrayGetUBound(array, 1, &last), "answered array");
    return static_cast<std::size_t>(std::int64_t{last} - first + 1);
}

object_ref object_of(IUnknown* unknown, const object_of_dispatch& object) {
    IDispatch* found = nullptr;
    if (unknown != nullptr) {
        require(unknown->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&found)),
                "answered object");
    }
    return found == nullptr ? nullptr : object(found);
}

object_array objects_of(SAFEARRAY* array, const object_of_dispatch& object) {
    object_array objects;
    array_elements<IUnknown*> elements(array);
    for (std::size_t i = 0; i < element_count(array); ++i) {
        objects.objects.push_back(object_of(elements[i], object));
    }
    return objects;
}

object_array objects_of_variants(SAFEARRAY* array, const object_of_dispatch& object) {
    object_array objects;
    array_elements<VARIANT> elements(array);
    for (std::size_t i = 0; i < element_count(array); ++i) {
        const value element = value_of(elements[i], object);
        const auto* held = std::get_if<object_ref>(&element);
        require(held == nullptr ? DISP_E_TYPEMISMATCH : S_OK, "element of an answered array");
        objects.objects.push_back(*held);
    }
    return objects;
}

number_array numbers_of(SAFEARRAY* array) {
    number_array numbers;
    array_elements<double> elements(array);
    for (std::size_t i = 0; i < element_count(array); ++i) {
        numbers.numbers.push_back(elements[i]);
    }
    return numbers;
}

std::vector<double> numbers_of_variants(SAFEARRAY* array) {
    std::vector<double> numbers;
    array_elements<VARIANT> elements(array);
    for (std::size_t i = 0; i < element_count(array); ++i) {
        require(V_VT(&elements[i]) == VT_R8 ? S_OK : DISP_E_TYPEMISMATCH, "element of an array");
        numbers.push_back(V_R8(&elements[i]));
    }
    return numbers;
}

std::vector<double> written_numbers(const VARIANT& written) {
    switch (V_VT(&written)) {
        case VT_ARRAY | VT_R8:
            return numbers_of(V_ARRAY(&written)).numbers;
        case VT_ARRAY | VT_VARIANT:
            return numbers_of_variants(V_ARRAY(&written));
        default:
            throw error_of(DISP_E_TYPEMISMATCH, "array written by a call");
    }
}

value array_value(VARTYPE type, SAFEARRAY* array, const object_of_dispatch& object) {
    switch (type) {
        case VT_R8:
            return numbers_of(array);
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return objects_of(array, object);
        case VT_VARIANT:
            return objects_of_variants(array, object);
        default:
            throw error_of(DISP_E_TYPEMISMATCH, "answered array");
    }
}

/// Any other number.
value number_value(const VARIANT& answer) {
    variant number;
    require(VariantChangeType(&number.get(), not_const(answer), 0, VT_R8), "answered number");
    return V_R8(&number.get());
}

}  // namespace

VARIANT variant::release() {
    const VARIANT handed_over = held_;
    VariantInit(&held_);
    return handed_over;
}

call_arguments::call_arguments(const values& arguments, const dispatch_of& dispatch,
                               array_passing passing) {
    owned_.reserve(arguments.size());
    for (std::size_t i = arguments.size(); i > 0; --i) {
        VARIANT& filled = owned_.emplace_back().get();
        if (const auto* numbers = std::get_if<by_reference_numbers>(&arguments[i - 1])) {
            passed_.push_back(reference_to_variant(filled));
            written_.push_back({filled, *numbers->target});
            continue;
        }
        std::visit(variant_filler(filled, dispatch), arguments[i - 1]);
        const bool is_array = V_ISARRAY(&filled);
        holds_arrays_ = holds_arrays_ || is_array;
        passed_.push_back(is_array && passing == array_passing::by_reference ? reference_to(filled)
                                                                             : filled);
    }
}

call_arguments::~call_arguments() = default;

void call_arguments::take_written() const {
    for (const written_array& array : written_) {
        array.target = written_numbers(array.held);
    }
}

value value_of(const VARIANT& answer, const object_of_dispatch& object) {
    if (V_ISBYREF(&answer)) {
        variant copied;
        require(VariantCopyInd(&copied.get(), not_const(answer)), "answered reference");
        return value_of(copied.get(), object);
    }
    if (V_ISARRAY(&answer)) {
        return array_value(static_cast<VARTYPE>(V_VT(&answer) & VT_TYPEMASK), V_ARRAY(&answer),
                           object);
    }
    switch (V_VT(&answer)) {
        case VT_EMPTY:
        case VT_NULL:
            return std::monostate();
        case VT_BOOL:
            return V_BOOL(&answer) != VARIANT_FALSE;
        case VT_I2:
            return std::int32_t{V_I2(&answer)};
        case VT_I4:
        case VT_INT:
            return static_cast<std::int32_t>(V_I4(&answer));
        case VT_BSTR:
            return utf8_of(V_BSTR(&answer));
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return object_of(V_UNKNOWN(&answer), object);
        default:
            return number_value(answer);
    }
}

}  // namespace kvt::automation
