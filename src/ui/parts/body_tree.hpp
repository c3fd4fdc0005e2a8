// body_tree: the documents of the Model View with their bodies, a tick each.
#pragma once

#include "cad/model_store.hpp"

#include <QTreeWidget>

#include <optional>
#include <vector>

namespace kvt {

class body_tree : public QTreeWidget {
    Q_OBJECT

  public:
    explicit body_tree(const char* name);

    /// Shows documents in their order. Bodies that were there keep their ticks, new ones are
    /// ticked. True when there were others before.
    bool show_documents(const std::vector<model_document>& documents);

    /// Of all documents, in order.
    std::vector<model_body> ticked_bodies() const;
    /// Those of the row that is chosen: a body, or all of a document; none without one.
    std::vector<model_body> chosen_bodies() const;
    /// The document of the row that is chosen, or the only one.
    std::optional<document_number> chosen_document() const;

  signals:
    void ticks_changed();

  private:
    QTreeWidgetItem* add_document(const model_document& document);
    bool is_ticked(body_number body) const;
    /// Ticks the bodies of a row alone, or all when they are ticked alone already.
    void isolate(const QTreeWidgetItem* row);
    std::vector<body_number> numbers_below(const QTreeWidgetItem* row) const;
    std::vector<model_body> bodies_of(const std::vector<body_number>& numbers) const;

    std::vector<model_document> documents_;
    std::vector<std::pair<body_number, QTreeWidgetItem*>> rows_;
};

}  // namespace kvt
