#include "automation/recorder_host.hpp"

#include "automation/automation_error.hpp"
#include "automation/call_log.hpp"
#include "automation/object.hpp"

#include <array>
#include <initializer_list>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

namespace kvt::automation {

namespace {

/// RPC_S_SERVER_UNAVAILABLE: an object whose program has ended.
constexpr std::int32_t SERVER_GONE = -2147023174;

constexpr std::int32_t FEATURE_IS_OK = 1216476310;  // igFeatureOK of Solid Edge
constexpr std::int32_t PROFILE_IS_VALID = 0;

/// What the packages answer that is no object.
std::optional<value> scripted_answer(std::string_view name) {
    static const std::map<std::string_view, value> ANSWERS = {
        {"GetTypeName2", std::string("RefPlane")},
        {"GetUserPreferenceStringValue", std::string("part.prtdot")},
        {"GetTemplateFile", std::string("standard.ipt")},
        {"End", PROFILE_IS_VALID},
        {"Select2", true},
        {"Status", FEATURE_IS_OK}};
    const auto found = ANSWERS.find(name);
    return found == ANSWERS.end() ? std::nullopt : std::optional(found->second);
}

bool begins_with_one_of(std::string_view name, std::initializer_list<std::string_view> words) {
    for (const std::string_view word : words) {
        if (name.starts_with(word)) {
            return true;
        }
    }
    return false;
}

/// Members that answer another object each time, also without arguments.
bool makes_something(std::string_view name) {
    return begins_with_one_of(name, {"Add", "Create", "New", "Copy"});
}

bool adds_to_collection(std::string_view name) {
    return name.starts_with("Add");
}

/// What a collection of a new document, or of a new model, holds.
std::size_t items_at_first(std::string_view collection) {
    if (collection == "RefPlanes" || collection == "WorkPlanes") {
        return 3;
    }
    return collection == "Bodies" || collection == "Features" ? 1 : 0;
}

std::size_t elements_answered(const recorded_call& call) {
    if (call.name == "AddRegion") {
        return 1;
    }
    return call.name == "ArrayPolar"
               ? static_cast<std::size_t>(std::get<std::int32_t>(call.arguments.at(0))) - 1
               : 0;
}

/// Numbers by reference get the numbers before them, in order: a point is its own place on a plane.
void write_by_reference(const values& arguments) {
    std::vector<double> numbers;
    std::size_t written = 0;
    for (const value& argument : arguments) {
        if (const auto* number = std::get_if<double>(&argument)) {
            numbers.push_back(*number);
        } else if (const auto* target = std::get_if<by_reference>(&argument)) {
            *target->target = numbers.at(written++);
        }
    }
}

using corners = std::array<std::vector<double>, 2>;  // lowest and highest

/// The box of every solid lies along x, that of a copy on a circle along y: such copies are turned.
const corners& box_of(std::string_view made_by) {
    static const corners ALONG_X = {{{0.0, 0.0, 0.0}, {2.0, 1.0, 1.0}}};
    static const corners ALONG_Y = {{{0.0, 0.0, 0.0}, {1.0, 2.0, 1.0}}};
    return made_by == "ArrayPolar" ? ALONG_Y : ALONG_X;
}

/// Arrays by reference get the corners of a box, in order: no other member is asked for one.
void write_box(const values& arguments, const corners& box) {
    std::size_t written = 0;
    for (const value& argument : arguments) {
        if (const auto* target = std::get_if<by_reference_numbers>(&argument)) {
            *target->target = box.at(written++);
        }
    }
}

}  // namespace

/// What the host and all its objects write into.
class recorder_host::record {
  public:
    /// Writes the call down, or its fault, which is thrown.
    recorded_call& add(recorded_call call) {
        calls.push_back(std::move(call));
        if (const auto fault = faults.find(calls.size()); fault != faults.end()) {
            calls.back().error = fault->second;
            throw automation_error(fault->second, fault->second, calls.back().name);
        }
        return calls.back();
    }
    std::size_t next_object() { return ++objects_; }

    std::vector<recorded_call> calls;
    std::map<std::size_t, std::int32_t> faults;  ///< by the number of the call

  private:
    std::size_t objects_ = 0;
};

namespace {

class recorded_object : public object {
  public:
    /// name is that of the member that answered it.
    recorded_object(const std::shared_ptr<recorder_host::record>& record, std::string name)
        : record_(record), number_(record->next_object()), name_(std::move(name)) {}

    value get(std::string_view name, values arguments) override {
        recorded_call& call = record()->add(call_of(call_kind::get, name, std::move(arguments)));
        write_outs(call.arguments);
        value answer = answer_of(call);
        note_objects(call, answer);
        return answer;
    }

    void run(std::string_view name, values arguments) override {
        const recorded_call& call =
            record()->add(call_of(call_kind::run, name, std::move(arguments)));
        write_outs(call.arguments);
        if (adds_to_collection(name)) {
            added_.push_back(nullptr);
        }
    }

    void put(std::string_view name, value new_value) override {
        record()->add(call_of(call_kind::put, name, {std::move(new_value)}));
    }

    std::size_t number() const { return number_; }

  private:
    std::shared_ptr<recorder_host::record> record() const {
        if (auto record = record_.lock()) {
            return record;
        }
        throw error_of(SERVER_GONE, name_);
    }
    recorded_call call_of(call_kind kind, std::string_view name, values arguments) const {
        recorded_call call;
        call.kind = kind;
        call.object = number_;
        call.name = name;
        call.arguments = std::move(arguments);
        return call;
    }

    void write_outs(const values& arguments) const {
        write_by_reference(arguments);
        write_box(arguments, box_of(name_));
    }

    value answer_of(const recorded_call& call) {
        if (const auto scripted = scripted_answer(call.name)) {
            return *scripted;
        }
        if (call.name == "Count") {
            return static_cast<std::int32_t>(items_at_first(name_) + added_.size());
        }
        if (const std::size_t elements = elements_answered(call); elements > 0) {
            return new_objects(call.name, elements);
        }
        return one_object(call);
    }

    object_ref one_object(const recorded_call& call) {
        if (call.name == "Item") {
            const object_ref found = added_item(call.arguments.at(0));
            return found != nullptr ? found : kept_object(call);
        }
        if (!makes_something(call.name) && call.arguments.empty()) {
            return kept_object(call);
        }
        object_ref made = new_object(call.name);
        if (adds_to_collection(call.name)) {
            added_.push_back(made);
        }
        return made;
    }

    object_ref new_object(const std::string& name) const {
        return std::make_shared<recorded_object>(record(), name);
    }
    object_array new_objects(const std::string& name, std::size_t count) const {
        object_array array;
        for (std::size_t i = 0; i < count; ++i) {
            array.objects.push_back(new_object(name));
        }
        return array;
    }

    /// The same object whenever the same is asked.
    object_ref kept_object(const recorded_call& call) {
        object_ref& kept = kept_[line_of(call, log_length::full)];
        if (kept == nullptr) {
            kept = new_object(call.name);
        }
        return kept;
    }

    /// What was added under an index, counted from 1 behind what was there at first; null for any
    /// other index.
    object_ref added_item(const value& index) const {
        const auto* number = std::get_if<std::int32_t>(&index);
        const auto first = static_cast<std::int64_t>(items_at_first(name_)) + 1;
        const auto behind = first + static_cast<std::int64_t>(added_.size());
        if (number == nullptr || *number < first || *number >= behind) {
            return nullptr;
        }
        return added_[static_cast<std::size_t>(*number - first)];
    }

    static void note_objects(recorded_call& call, const value& answer) {
        if (const auto* one = std::get_if<object_ref>(&answer)) {
            call.answered = {recorder_host::number_of(*one)};
        } else if (const auto* array = std::get_if<object_array>(&answer)) {
            call.answers_array = true;
            for (const object_ref& element : array->objects) {
                call.answered.push_back(recorder_host::number_of(element));
            }
        }
    }

    std::weak_ptr<recorder_host::record> record_;
    std::size_t number_;
    std::string name_;
    std::map<std::string, object_ref> kept_;  ///< by the line of the call
    std::vector<object_ref> added_;           ///< null where the procedure answered none
};

recorded_call call_of_program(call_kind kind, std::string_view class_name) {
    recorded_call call;
    call.kind = kind;
    call.name = class_name;
    return call;
}

}  // namespace

recorder_host::recorder_host() : record_(std::make_shared<record>()) {}

recorder_host::~recorder_host() = default;

object_ref recorder_host::running(std::string_view class_name) {
    record_->add(call_of_program(call_kind::running, class_name));
    return nullptr;
}

object_ref recorder_host::create(std::string_view class_name) {
    recorded_call& call = record_->add(call_of_program(call_kind::create, class_name));
    auto application = std::make_shared<recorded_object>(record_, call.name);
    call.answered = {application->number()};
    return application;
}

void recorder_host::fail_call(std::size_t call, std::int32_t number) {
    record_->faults[call] = number;
}

const std::vector<recorded_call>& recorder_host::calls() const {
    return record_->calls;
}

std::string recorder_host::log(log_length length) const {
    return log_of(record_->calls, length);
}

std::size_t recorder_host::number_of(const object_ref& one) {
    const auto* recorded = dynamic_cast<const recorded_object*>(one.get());
    return recorded == nullptr ? 0 : recorded->number();
}

}  // namespace kvt::automation
