// built_in_modeller: solids without a CAD package. It answers the class names of the packages in
// their place, so that their own routines run unchanged, and holds what they build.
#pragma once

#include "automation/host.hpp"
#include "cad/model_store.hpp"

#include <filesystem>
#include <memory>
#include <string_view>

namespace kvt {

/// The modeller is a module with a kernel of many megabytes: it is loaded when something is asked
/// of it for the first time, and neither program links it.
class built_in_modeller : public automation::host {
  public:
    /// With the module that was delivered with the running program.
    built_in_modeller();
    explicit built_in_modeller(std::filesystem::path module);
    /// With a store that is there already.
    explicit built_in_modeller(std::unique_ptr<model_store> store);
    ~built_in_modeller() override;

    /// Whether there is a module to load.
    bool is_there() const;
    /// What it holds; null while nothing was asked of it, and when it can't be loaded.
    model_store* loaded_store() const { return store_.get(); }
    /// The same, loaded now when it was not yet.
    model_store* store();

    /// As the store answers. Without one: no program runs, and create throws automation_error 429.
    automation::object_ref running(std::string_view class_name) override;
    automation::object_ref create(std::string_view class_name) override;

  private:
    std::filesystem::path module_;
    bool was_asked_ = false;
    std::unique_ptr<model_store> store_;
};

}  // namespace kvt
