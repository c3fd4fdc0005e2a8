// table_object: an object whose members stand in a table, for what takes the place of another
// program: name, count of arguments, function. It takes nothing else, so that it checks our calls.
#pragma once

#include "automation/object.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace kvt::automation {

/// A refusal of the program's own, as its unspecified error E_FAIL.
inline constexpr std::int32_t REFUSED = -2147467259;
[[noreturn]] void refuse(const std::string& why);
/// 13
[[noreturn]] void refuse_type(const std::string& wanted);
/// 9: a number that a collection or an array doesn't have.
[[noreturn]] void refuse_index(const std::string& of);

/// An argument of one kind. Nothing is coerced: what a program declares as a real gets a real.
template <typename kind>
const kind& argument(const values& arguments, std::size_t i) {
    if (const auto* held = std::get_if<kind>(&arguments.at(i))) {
        return *held;
    }
    refuse_type("another kind of argument " + std::to_string(i));
}

double real(const values& arguments, std::size_t i);
std::int32_t whole(const values& arguments, std::size_t i);
bool truth(const values& arguments, std::size_t i);
/// A number from 1 to count, as the index from 0 that it means. Throws 9 for any other.
std::size_t item_number(const values& arguments, std::size_t i, std::size_t count,
                        const std::string& of);
/// An array of exactly three numbers.
std::array<double, 3> three_reals(const values& arguments, std::size_t i);

/// An object whose members are added one by one. It is used no more after it was deleted or
/// consumed.
class table_object : public object {
  public:
    using function = std::function<value(const values&)>;
    using procedure = std::function<void(const values&)>;
    using setter = std::function<void(const value&)>;

    value get(std::string_view name, values arguments = {}) override;
    void run(std::string_view name, values arguments = {}) override;
    void put(std::string_view name, value new_value) override;

    /// A member with a result. It may also be run.
    void on_get(const std::string& name, std::size_t arguments, function call);
    /// A member without one: it can't be asked for.
    void on_run(const std::string& name, std::size_t arguments, procedure call);
    void on_put(const std::string& name, setter call);
    /// A property that is read.
    void has(const std::string& name, value held);
    /// A switch that can be put and doesn't matter here.
    void has_switch(const std::string& name);
    /// A switch whose state is kept; it lives as long as the object.
    void has_switch(const std::string& name, bool& state);

    /// Throws when the object is gone.
    virtual void expect_alive() const;
    bool is_gone = false;

  private:
    struct member {
        std::size_t arguments = 0;
        function call;
        bool answers = true;
    };
    const member& find(std::string_view name, const values& arguments) const;

    std::map<std::string, member, std::less<>> members_;
    std::map<std::string, setter, std::less<>> setters_;
};
using table_ref = std::shared_ptr<table_object>;

/// An object without members that stands for something; it is only passed on.
template <typename kind>
struct holder : table_object {
    explicit holder(kind what) : held(std::move(what)) {}
    kind held;
};
template <typename kind>
object_ref holding(kind what) {
    return std::make_shared<holder<kind>>(std::move(what));
}

/// The object of an argument as what it must be.
template <typename kind>
std::shared_ptr<kind> object_argument(const values& arguments, std::size_t i) {
    auto held = std::dynamic_pointer_cast<kind>(argument<object_ref>(arguments, i));
    if (held == nullptr) {
        refuse_type("another object as argument " + std::to_string(i));
    }
    held->expect_alive();
    return held;
}
template <typename kind>
std::shared_ptr<kind> object_put(const value& put) {
    return object_argument<kind>({put}, 0);
}
/// What the holder of an argument holds.
template <typename kind>
kind& held_argument(const values& arguments, std::size_t i) {
    return object_argument<holder<kind>>(arguments, i)->held;
}

}  // namespace kvt::automation
