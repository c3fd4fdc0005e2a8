// document_store: the documents of the built-in modeller with their bodies and curves. The object
// models of the packages put in what they build; the program labels, shows and saves it. Lengths
// mm: the object models change their package's unit at their edge.
#pragma once

#include "cad/builtin/saved_body.hpp"
#include "cad/model_store.hpp"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kvt::builtin {

/// All of a model_store but the host. The objects of the packages share it with the host, so that
/// one of them that is held longer than the host finds its document closed and not gone.
class document_store {
  public:
    /// A new empty document under the name that its package would give it.
    document_number add_document(const std::string& name);
    /// A new body, or a curve, of a document. Its role is `other` until it is labelled. Throws
    /// std::out_of_range when the document was closed.
    body_number add(document_number document, const solid_or_curve& one, const std::string& name);
    /// Another shape under the same number, name and role, as a Boolean leaves its first solid.
    /// Throws std::out_of_range for a body that is gone.
    void replace(body_number number, const solid_or_curve& one);
    /// Without effect for a body that is gone.
    void remove(body_number number);
    bool has(body_number number) const;
    bool has_document(document_number number) const;
    /// As it was put in. Throws std::out_of_range for a body that is gone.
    const solid_or_curve& at(body_number number) const;

    // As model_store promises.
    std::vector<model_document> documents() const;
    void label(body_number body, const std::string& name, body_role role);
    const body_mesh& mesh_of(body_number body);
    void save(const std::filesystem::path& file, solid_format format,
              const std::vector<body_number>& bodies, const std::optional<housing_plan>& housing);
    void close_document(document_number document);

  private:
    struct stored_body {
        saved_body body;
        document_number document = 0;
        std::optional<body_mesh> mesh;
    };
    static model_body description(body_number number, const saved_body& one);

    std::map<document_number, std::string> documents_;
    std::map<body_number, stored_body> bodies_;
    document_number documents_made_ = 0;
    body_number bodies_made_ = 0;
};

}  // namespace kvt::builtin
