// variant: a value in the form in which it crosses to another program, a VARIANT.
#pragma once

#include "automation/value.hpp"

#include <functional>
#include <oaidl.h>

namespace kvt::automation {

/// Owns what its VARIANT holds.
class variant {
  public:
    variant() { VariantInit(&held_); }
    ~variant() { VariantClear(&held_); }
    variant(variant&& other) noexcept : held_(other.held_) { VariantInit(&other.held_); }
    variant& operator=(variant&&) = delete;

    VARIANT& get() { return held_; }
    /// Hands over what it holds.
    VARIANT release();

  private:
    VARIANT held_;
};

/// The other program's object behind one of ours. Throws 13 for an object of another host.
using dispatch_of = std::function<IDispatch*(object&)>;
/// Our object for one of the other program, which it refers to on its own.
using object_of_dispatch = std::function<object_ref(IDispatch*)>;

/// How arrays cross: by value, or by reference, as some members declare them.
enum class array_passing { by_value, by_reference };

/// Arguments for a call, the last one first. What they refer to lives as long as they do.
class call_arguments {
  public:
    call_arguments(const values& arguments, const dispatch_of& dispatch, array_passing passing);
    ~call_arguments();
    call_arguments(const call_arguments&) = delete;
    call_arguments& operator=(const call_arguments&) = delete;

    VARIANT* data() { return passed_.data(); }
    std::size_t size() const { return passed_.size(); }
    bool holds_arrays() const { return holds_arrays_; }
    /// Hands the arrays that the call wrote to the targets of by_reference_numbers. Throws 13 for
    /// what is no array of doubles, or of variants that hold doubles.
    void take_written() const;

  private:
    struct written_array {
        const VARIANT& held;
        std::vector<double>& target;
    };

    std::vector<variant> owned_;
    std::vector<VARIANT> passed_;  // what owned_ holds, or references to it
    std::vector<written_array> written_;
    bool holds_arrays_ = false;
};

/// The value that a call answered. Whole numbers are int32 where they fit, other numbers double;
/// arrays of objects are object arrays, whatever their elements are declared as. Throws 13 for what
/// no value can hold.
value value_of(const VARIANT& answer, const object_of_dispatch& object);

}  // namespace kvt::automation
