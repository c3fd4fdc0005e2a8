#include "ui/parts/body_tree.hpp"

#include "ui/shell/qt_text.hpp"

#include <QHeaderView>

#include <algorithm>

namespace kvt {

namespace {

/// The number of the body, or of the document, of a row.
constexpr int NUMBER_ROLE = Qt::UserRole;

bool is_same(const model_document& a, const model_document& b) {
    const auto same_body = [](const model_body& one, const model_body& other) {
        return one.number == other.number && one.name == other.name && one.role == other.role &&
               one.volume() == other.volume();
    };
    return a.number == b.number && a.name == b.name &&
           std::ranges::equal(a.bodies, b.bodies, same_body);
}

QTreeWidgetItem* row_of(const std::string& name, std::uint32_t number) {
    auto* row = new QTreeWidgetItem({qt_text(name)});
    row->setData(0, NUMBER_ROLE, number);
    row->setToolTip(0, qt_text(name));
    return row;
}

}  // namespace

body_tree::body_tree(const char* name) {
    setObjectName(name);
    setHeaderHidden(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setExpandsOnDoubleClick(false);
    connect(this, &QTreeWidget::itemChanged, this, &body_tree::ticks_changed);
    connect(this, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* row) { isolate(row); });
}

bool body_tree::show_documents(const std::vector<model_document>& documents) {
    if (std::ranges::equal(documents, documents_, is_same)) {
        return false;
    }
    const QSignalBlocker quiet(this);
    std::vector<body_number> unticked;
    for (const auto& [number, row] : rows_) {
        if (row->checkState(0) == Qt::Unchecked) {
            unticked.push_back(number);
        }
    }
    clear();
    rows_.clear();
    documents_ = documents;
    for (const model_document& document : documents_) {
        addTopLevelItem(add_document(document));
    }
    for (const auto& [number, row] : rows_) {
        const bool was_unticked = std::ranges::find(unticked, number) != unticked.end();
        row->setCheckState(0, was_unticked ? Qt::Unchecked : Qt::Checked);
    }
    expandAll();
    return true;
}

QTreeWidgetItem* body_tree::add_document(const model_document& document) {
    QTreeWidgetItem* row = row_of(document.name, document.number);
    row->setFlags(row->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    for (const model_body& body : document.bodies) {
        QTreeWidgetItem* below = row_of(body.name, body.number);
        below->setFlags(below->flags() | Qt::ItemIsUserCheckable);
        row->addChild(below);
        rows_.emplace_back(body.number, below);
    }
    return row;
}

bool body_tree::is_ticked(body_number body) const {
    const auto found = std::ranges::find(rows_, body, [](const auto& row) { return row.first; });
    return found != rows_.end() && found->second->checkState(0) == Qt::Checked;
}

std::vector<body_number> body_tree::numbers_below(const QTreeWidgetItem* row) const {
    std::vector<body_number> numbers;
    for (const auto& [number, below] : rows_) {
        if (below == row || below->parent() == row) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

void body_tree::isolate(const QTreeWidgetItem* row) {
    const std::vector<body_number> alone = numbers_below(row);
    const auto is_alone = [&alone](body_number number) {
        return std::ranges::find(alone, number) != alone.end();
    };
    const bool stands_alone = std::ranges::all_of(rows_, [&](const auto& candidate) {
        return is_ticked(candidate.first) == is_alone(candidate.first);
    });
    {
        const QSignalBlocker quiet(this);
        for (const auto& [number, other] : rows_) {
            other->setCheckState(0, stands_alone || is_alone(number) ? Qt::Checked : Qt::Unchecked);
        }
    }
    viewport()->update();
    emit ticks_changed();
}

std::vector<model_body> body_tree::bodies_of(const std::vector<body_number>& numbers) const {
    std::vector<model_body> bodies;
    for (const model_document& document : documents_) {
        for (const model_body& body : document.bodies) {
            if (std::ranges::find(numbers, body.number) != numbers.end()) {
                bodies.push_back(body);
            }
        }
    }
    return bodies;
}

std::vector<model_body> body_tree::ticked_bodies() const {
    std::vector<body_number> ticked;
    for (const auto& [number, row] : rows_) {
        if (is_ticked(number)) {
            ticked.push_back(number);
        }
    }
    return bodies_of(ticked);
}

std::vector<model_body> body_tree::chosen_bodies() const {
    const QList<QTreeWidgetItem*> chosen = selectedItems();
    return chosen.isEmpty() ? std::vector<model_body>()
                            : bodies_of(numbers_below(chosen.constFirst()));
}

std::optional<document_number> body_tree::chosen_document() const {
    const QList<QTreeWidgetItem*> chosen = selectedItems();
    if (chosen.isEmpty()) {
        return documents_.size() == 1 ? std::optional(documents_.front().number) : std::nullopt;
    }
    const QTreeWidgetItem* row = chosen.constFirst();
    const QTreeWidgetItem* document = row->parent() == nullptr ? row : row->parent();
    return document->data(0, NUMBER_ROLE).toUInt();
}

}  // namespace kvt
