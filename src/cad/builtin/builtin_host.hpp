// builtin_host: the modeller behind the class names of the CAD packages. Their own routines build
// solids in its documents.
#pragma once

#include "cad/builtin/drawn_document.hpp"
#include "cad/model_store.hpp"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt::builtin {

class builtin_host : public model_store {
  public:
    explicit builtin_host(desk_ref desk = std::make_shared<modeller_desk>());

    /// One application a class name, which runs from its first create on. Any other class throws
    /// automation_error 429.
    automation::object_ref running(std::string_view class_name) override;
    automation::object_ref create(std::string_view class_name) override;

    std::vector<model_document> documents() const override;
    void set_drawing_unit(double mm) override;
    void label(body_number body, const std::string& name, body_role role) override;
    const body_mesh& mesh_of(body_number body) override;
    void save(const std::filesystem::path& file, solid_format format,
              const std::vector<body_number>& bodies,
              const std::optional<housing_plan>& housing) override;
    void close_document(document_number document) override;

  private:
    desk_ref desk_;
    std::map<std::string_view, automation::object_ref> running_;  ///< by class name
};

}  // namespace kvt::builtin
