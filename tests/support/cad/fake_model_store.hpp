// A store of models without a kernel: bodies that a test puts in, and a log of what is asked of it.
#pragma once

#include "automation/recorder_host.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "cad/model_store.hpp"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kvt {

/// A box-shaped body without a name.
inline model_body box_body(point3 lowest, point3 highest) {
    model_body body;
    body.contour_area = (highest.x - lowest.x) * (highest.y - lowest.y);
    body.height = highest.z - lowest.z;
    body.box = {lowest, highest};
    return body;
}

class fake_model_store : public model_store {
  public:
    /// Bodies that the next application builds, in a new document.
    std::vector<model_body> to_build;
    std::map<body_number, body_mesh> meshes;
    std::vector<std::string> log;
    /// Answers the calls of the routines.
    automation::recorder_host programs;
    /// What save throws instead of writing.
    std::optional<run_time_error> save_failure;
    /// The housing of the last save.
    std::optional<housing_plan> saved_housing;

    document_number add_document(std::vector<model_body> bodies) {
        const auto number = static_cast<document_number>(++documents_made_);
        model_document document{number, "Part" + std::to_string(number), {}};
        for (model_body& body : bodies) {
            body.number = ++bodies_made_;
            document.bodies.push_back(std::move(body));
        }
        documents_.push_back(std::move(document));
        return number;
    }

    automation::object_ref running(std::string_view class_name) override {
        return programs.running(class_name);
    }
    automation::object_ref create(std::string_view class_name) override {
        log.push_back("create " + std::string(class_name));
        add_document(std::exchange(to_build, {}));
        return programs.create(class_name);
    }

    std::vector<model_document> documents() const override { return documents_; }
    void set_drawing_unit(double mm) override {
        log.push_back(mm == 1.0 ? "unit mm" : mm == 25.4 ? "unit inch" : "unit unknown");
    }
    void label(body_number number, const std::string& name, body_role role) override {
        for (model_document& document : documents_) {
            for (model_body& body : document.bodies) {
                if (body.number == number) {
                    body.name = name;
                    body.role = role;
                }
            }
        }
    }
    const body_mesh& mesh_of(body_number body) override { return meshes[body]; }
    void save(const std::filesystem::path& file, solid_format format,
              const std::vector<body_number>& bodies,
              const std::optional<housing_plan>& housing) override {
        if (save_failure) {
            throw *save_failure;
        }
        std::string line = "save " + utf8_of_path(file.filename()) + " " +
                           std::to_string(static_cast<int>(format)) + ":";
        for (const body_number body : bodies) {
            line += " " + std::to_string(body);
        }
        log.push_back(line);
        saved_housing = housing;
    }
    void close_document(document_number number) override {
        std::erase_if(documents_, [&](const model_document& one) { return one.number == number; });
    }

  private:
    std::vector<model_document> documents_;
    document_number documents_made_ = 0;
    body_number bodies_made_ = 0;
};

}  // namespace kvt
