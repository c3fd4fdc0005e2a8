#include "app/models/built_in_modeller.hpp"

#include "app/desk/delivered_module.hpp"
#include "automation/no_host.hpp"
#include "base/loaded_function.hpp"

#include <utility>

namespace kvt {

namespace {

/// The function of the module that makes a store; the caller owns it.
constexpr const char* NEW_STORE = "kvt_new_model_store";
using new_store_function = model_store*();

std::unique_ptr<model_store> store_of(const std::filesystem::path& module) {
    const auto new_store =
        reinterpret_cast<new_store_function*>(loaded_function(module, NEW_STORE));
    return std::unique_ptr<model_store>(new_store == nullptr ? nullptr : new_store());
}

}  // namespace

built_in_modeller::built_in_modeller() : built_in_modeller(delivered_module("kvt_models.so")) {}

built_in_modeller::built_in_modeller(std::filesystem::path module) : module_(std::move(module)) {}

built_in_modeller::built_in_modeller(std::unique_ptr<model_store> store)
    : was_asked_(true), store_(std::move(store)) {}

built_in_modeller::~built_in_modeller() = default;

bool built_in_modeller::is_there() const {
    std::error_code ignored;
    return store_ != nullptr || std::filesystem::exists(module_, ignored);
}

model_store* built_in_modeller::store() {
    if (!std::exchange(was_asked_, true)) {
        store_ = store_of(module_);
    }
    return store_.get();
}

automation::object_ref built_in_modeller::running(std::string_view class_name) {
    return store() == nullptr ? nullptr : store()->running(class_name);
}

automation::object_ref built_in_modeller::create(std::string_view class_name) {
    return store() == nullptr ? automation::no_host().create(class_name)
                              : store()->create(class_name);
}

}  // namespace kvt
