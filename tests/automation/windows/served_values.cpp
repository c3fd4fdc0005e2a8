#include "automation/windows/served_values.hpp"

#include "base/windows/wide_text.hpp"

#include <cstdint>
#include <oleauto.h>
#include <stdexcept>

namespace kvt::automation {

namespace {

[[noreturn]] void refuse(const std::string& what) {
    throw std::runtime_error(what);
}

SAFEARRAY* array_in(const VARIANT& argument) {
    return V_ISBYREF(&argument) ? *V_ARRAYREF(&argument) : V_ARRAY(&argument);
}

/// First and last index of a dimension, which counts from 1.
struct index_range {
    LONG first = 0, last = -1;

    std::size_t count() const { return static_cast<std::size_t>(std::int64_t{last} - first + 1); }
};

index_range indexes(SAFEARRAY* array, UINT dimension) {
    index_range found;
    if (FAILED(SafeArrayGetLBound(array, dimension, &found.first)) ||
        FAILED(SafeArrayGetUBound(array, dimension, &found.last))) {
        refuse("array without bounds");
    }
    return found;
}

number_array read_numbers(SAFEARRAY* array) {
    number_array numbers;
    const index_range range = indexes(array, 1);
    for (LONG i = range.first; i <= range.last; ++i) {
        double number = 0.0;
        SafeArrayGetElement(array, &i, &number);
        numbers.numbers.push_back(number);
    }
    return numbers;
}

std::vector<object_ref> read_objects(SAFEARRAY* array, const served_behind& behind) {
    std::vector<object_ref> objects;
    const index_range range = indexes(array, 1);
    for (LONG i = range.first; i <= range.last; ++i) {
        IDispatch* element = nullptr;
        SafeArrayGetElement(array, &i, static_cast<void*>(&element));
        objects.push_back(behind(element));
        if (element != nullptr) {
            element->Release();
        }
    }
    return objects;
}

std::vector<object_ref> read_variants(SAFEARRAY* array, const served_behind& behind) {
    std::vector<object_ref> objects;
    const index_range range = indexes(array, 1);
    for (LONG i = range.first; i <= range.last; ++i) {
        VARIANT element;
        VariantInit(&element);
        SafeArrayGetElement(array, &i, &element);
        if (V_VT(&element) != VT_DISPATCH) {
            refuse("array of variants that are no objects");
        }
        objects.push_back(behind(V_DISPATCH(&element)));
        VariantClear(&element);
    }
    return objects;
}

std::string utf8_of(BSTR text) {
    return text == nullptr ? "" : utf8_of_wide({text, SysStringLen(text)});
}

cell read_cell(SAFEARRAY* array, LONG row, LONG column) {
    LONG at[2] = {row, column};
    VARIANT element;
    VariantInit(&element);
    SafeArrayGetElement(array, at, &element);
    cell found;
    if (V_VT(&element) == VT_R8) {
        found = V_R8(&element);
    } else if (V_VT(&element) == VT_BSTR) {
        found = utf8_of(V_BSTR(&element));
    } else if (V_VT(&element) != VT_EMPTY) {
        refuse("cell that is neither empty, a number nor a text");
    }
    VariantClear(&element);
    return found;
}

table read_table(SAFEARRAY* array) {
    const index_range rows = indexes(array, 1);
    const index_range columns = indexes(array, 2);
    table cells;
    cells.rows = rows.count();
    cells.columns = columns.count();
    for (LONG row = rows.first; row <= rows.last; ++row) {
        for (LONG column = columns.first; column <= columns.last; ++column) {
            cells.cells.push_back(read_cell(array, row, column));
        }
    }
    return cells;
}

value read_array(const VARIANT& argument, const served_behind& behind) {
    SAFEARRAY* array = array_in(argument);
    const auto element = static_cast<VARTYPE>(V_VT(&argument) & VT_TYPEMASK);
    if (element == VT_VARIANT && SafeArrayGetDim(array) == 2) {
        return read_table(array);
    }
    switch (element) {
        case VT_R8:
            return read_numbers(array);
        case VT_DISPATCH:
            return object_array{read_objects(array, behind)};
        case VT_VARIANT:
            return variant_array{read_variants(array, behind)};
        default:
            refuse("array of " + type_name(argument));
    }
}

void write_objects(const std::vector<object_ref>& objects, const served_for& served,
                   bool as_variants, VARIANT& into) {
    const auto count = static_cast<ULONG>(objects.size());
    SAFEARRAY* array = SafeArrayCreateVector(as_variants ? VT_VARIANT : VT_DISPATCH, 0, count);
    for (LONG i = 0; i < static_cast<LONG>(count); ++i) {
        IDispatch* element = served(objects[static_cast<std::size_t>(i)]);
        VARIANT variant;
        V_VT(&variant) = VT_DISPATCH;
        V_DISPATCH(&variant) = element;
        SafeArrayPutElement(array, &i, as_variants ? static_cast<void*>(&variant) : element);
        element->Release();  // the array has a reference of its own
    }
    V_VT(&into) = static_cast<VARTYPE>(VT_ARRAY | (as_variants ? VT_VARIANT : VT_DISPATCH));
    V_ARRAY(&into) = array;
}

}  // namespace

std::string type_name(const VARIANT& argument) {
    std::string name;
    name += V_ISBYREF(&argument) ? "BYREF|" : "";
    name += V_ISARRAY(&argument) ? "ARRAY|" : "";
    switch (V_VT(&argument) & VT_TYPEMASK) {
        case VT_EMPTY:
            return name + "EMPTY";
        case VT_I4:
            return name + "I4";
        case VT_R8:
            return name + "R8";
        case VT_BSTR:
            return name + "BSTR";
        case VT_BOOL:
            return name + "BOOL";
        case VT_DISPATCH:
            return name + "DISPATCH";
        case VT_ERROR:
            return name + "ERROR";
        case VT_VARIANT:
            return name + "VARIANT";
        default:
            return name + std::to_string(V_VT(&argument) & VT_TYPEMASK);
    }
}

value read_argument(const VARIANT& argument, const served_behind& behind) {
    if (V_ISARRAY(&argument)) {
        return read_array(argument, behind);
    }
    switch (V_VT(&argument)) {
        case VT_BOOL:
            return V_BOOL(&argument) == VARIANT_TRUE;
        case VT_I4:
            return static_cast<std::int32_t>(V_I4(&argument));
        case VT_R8:
            return V_R8(&argument);
        case VT_BSTR:
            return utf8_of(V_BSTR(&argument));
        case VT_DISPATCH:
            if (V_DISPATCH(&argument) == nullptr) {
                return nothing();
            }
            return behind(V_DISPATCH(&argument));
        case VT_ERROR:
            return omitted();
        case VT_BYREF | VT_R8:
            return by_reference{V_R8REF(&argument)};
        default:
            refuse("argument of type " + type_name(argument));
    }
}

bool takes_array(const VARIANT& argument) {
    return V_VT(&argument) == (VT_BYREF | VT_VARIANT);
}

void write_array(const std::vector<double>& numbers, bool as_variants, const VARIANT& argument) {
    const VARTYPE type = as_variants ? VT_VARIANT : VT_R8;
    SAFEARRAY* array = SafeArrayCreateVector(type, 0, static_cast<ULONG>(numbers.size()));
    for (LONG i = 0; i < static_cast<LONG>(numbers.size()); ++i) {
        double number = numbers[static_cast<std::size_t>(i)];
        VARIANT variant;
        V_VT(&variant) = VT_R8;
        V_R8(&variant) = number;
        SafeArrayPutElement(array, &i, as_variants ? static_cast<void*>(&variant) : &number);
    }
    VARIANT& into = *V_VARIANTREF(&argument);
    VariantClear(&into);
    V_VT(&into) = static_cast<VARTYPE>(VT_ARRAY | type);
    V_ARRAY(&into) = array;
}

void write_answer(const value& answer, const served_for& served, bool as_variants, VARIANT& into) {
    if (const auto* truth = std::get_if<bool>(&answer)) {
        V_VT(&into) = VT_BOOL;
        V_BOOL(&into) = *truth ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (const auto* whole = std::get_if<std::int32_t>(&answer)) {
        V_VT(&into) = VT_I4;
        V_I4(&into) = *whole;
    } else if (const auto* number = std::get_if<double>(&answer)) {
        V_VT(&into) = VT_R8;
        V_R8(&into) = *number;
    } else if (const auto* text = std::get_if<std::string>(&answer)) {
        V_VT(&into) = VT_BSTR;
        V_BSTR(&into) = SysAllocString(wide_of_utf8(*text).c_str());
    } else if (const auto* object = std::get_if<object_ref>(&answer)) {
        V_VT(&into) = VT_DISPATCH;
        V_DISPATCH(&into) = *object == nullptr ? nullptr : served(*object);
    } else if (const auto* objects = std::get_if<object_array>(&answer)) {
        write_objects(objects->objects, served, as_variants, into);
    } else if (const auto* variants = std::get_if<variant_array>(&answer)) {
        write_objects(variants->objects, served, true, into);
    }
}

}  // namespace kvt::automation
