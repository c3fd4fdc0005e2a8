#include "support/cad/faulty_host.hpp"

#include "automation/automation_error.hpp"
#include "automation/object.hpp"

#include <utility>
#include <vector>

namespace kvt {

namespace {

using automation::object_ref;
using automation::value;
using automation::values;

object_ref watched(const object_ref& one, const std::shared_ptr<watched_calls>& calls);

/// Changes the objects of a value, single ones and those of arrays.
template <typename function>
value with_objects(value of, const function& change) {
    if (auto* one = std::get_if<object_ref>(&of)) {
        *one = change(*one);
    } else if (auto* array = std::get_if<automation::object_array>(&of)) {
        for (object_ref& element : array->objects) {
            element = change(element);
        }
    } else if (auto* variants = std::get_if<automation::variant_array>(&of)) {
        for (object_ref& element : variants->objects) {
            element = change(element);
        }
    }
    return of;
}

/// Passes calls on to another object, with that one's own objects as arguments.
class watched_object : public automation::object {
  public:
    watched_object(object_ref behind_, std::shared_ptr<watched_calls> calls)
        : behind(std::move(behind_)), calls_(std::move(calls)) {}

    value get(std::string_view name, values arguments) override {
        calls_->pass(std::string(name));
        return with_objects(behind->get(name, own(std::move(arguments))),
                            [this](const object_ref& one) { return watched(one, calls_); });
    }
    void run(std::string_view name, values arguments) override {
        calls_->pass(std::string(name));
        behind->run(name, own(std::move(arguments)));
    }
    void put(std::string_view name, value new_value) override {
        calls_->pass(std::string(name));
        behind->put(name, own({std::move(new_value)}).front());
    }

    object_ref behind;

  private:
    static object_ref own(const object_ref& one) {
        const auto* passed = dynamic_cast<const watched_object*>(one.get());
        return passed == nullptr ? one : passed->behind;
    }
    static values own(values arguments) {
        for (value& argument : arguments) {
            argument =
                with_objects(std::move(argument), [](const object_ref& one) { return own(one); });
        }
        return arguments;
    }

    std::shared_ptr<watched_calls> calls_;
};

object_ref watched(const object_ref& one, const std::shared_ptr<watched_calls>& calls) {
    return one == nullptr ? nullptr : std::make_shared<watched_object>(one, calls);
}

}  // namespace

void watched_calls::pass(const std::string& member) {
    members.insert(member);
    if (member == failing && !has_failed && calls_before-- == 0) {
        has_failed = true;
        throw automation::automation_error(error, error, member);
    }
}

automation::object_ref faulty_host::running(std::string_view class_name) {
    return watched(behind_.running(class_name), calls);
}

automation::object_ref faulty_host::create(std::string_view class_name) {
    return watched(behind_.create(class_name), calls);
}

}  // namespace kvt
