#include "ui/parts/study_plan_side.hpp"

#include "app/program.hpp"
#include "app/trial/design_trial.hpp"
#include "app/trial/entry_limits.hpp"
#include "base/number_text.hpp"
#include "core/entry_names.hpp"
#include "core/entry_numbers.hpp"
#include "core/text_table.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <string>
#include <vector>

namespace kvt {

namespace {

constexpr int FIRST_COUNT = 200;
constexpr int MOST_DESIGNS = 10000000;
constexpr int MOST_SEED = 1000000000;

/// The kinds of a study in the order of their list.
enum study_kind { grid_kind, latin_kind, sobol_kind, search_kind };
constexpr std::array<const char*, 4> KINDS = {"kind_grid", "kind_latin", "kind_sobol",
                                              "kind_search"};
constexpr std::array<const char*, 3> SAMPLES = {"grid", "latin:", "sobol:"};

constexpr const char* FIRST_ENTRY = "ecc";

/// What a new study records.
constexpr std::array<const char*, 5> FIRST_QUANTITIES = {"capacity", "outer_diameter",
                                                         "overall_eff_max", "ripple", "hertz_max"};

QString text_named(const char* name, std::int16_t language) {
    return qt_text(form_text("study_form", name, language));
}

QSpinBox* count_box(const char* name, int least, int most, int value) {
    auto* box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(least, most);
    box->setValue(value);
    return box;
}

/// Those that are one number.
std::vector<study_quantity> listed_quantities(const program& kavetta) {
    std::vector<study_quantity> listed = study_quantities(kavetta);
    std::erase_if(listed, [](const study_quantity& quantity) {
        return quantity.spread != quantity_spread::nothing;
    });
    return listed;
}

void add_labelled(QGridLayout& grid, const char* label, QWidget* box) {
    auto* text = named_label(label);
    text->setBuddy(box);
    const int row = grid.rowCount();
    grid.addWidget(text, row, 0);
    grid.addWidget(box, row, 1);
}

/// Texts between semicolons, without the blanks around them.
std::vector<std::string> parted(const QString& text) {
    std::vector<std::string> parts;
    for (const QString& part : text.split(';', Qt::SkipEmptyParts)) {
        if (!part.trimmed().isEmpty()) {
            parts.push_back(utf8_text(part.trimmed()));
        }
    }
    return parts;
}

QString joined(const std::vector<std::string>& parts) {
    QStringList texts;
    for (const std::string& part : parts) {
        texts.append(qt_text(part));
    }
    return texts.join("; ");
}

/// A power of ten, between a hundredth and a thousandth of a range.
double round_step(double range) {
    return std::pow(10.0, std::floor(std::log10(range)) - 2.0);
}

/// The accepted range of a number as it stands, "2.1:2.87:0.01"; half to double of it where an end
/// is open; the text itself where no number is accepted.
std::string first_values(const program& kavetta, const entry_field& entry) {
    const std::string& present = kavetta.entries.*entry.member;
    if (entry.kind == entry_kind::check) {
        return "0,1";
    }
    const double number = val(commas_to_points(present));
    const calc_stage last = std::max(reading_stage(entry).value_or(calc_stage::profiles),
                                     last_calculated_stage(kavetta));
    const auto limits = find_limits(kavetta, entry, last);
    if (!limits || number == 0.0) {
        return present;
    }
    const auto end = [](const std::optional<entry_limit>& limit, double open) {
        return limit ? commas_to_points(limit->shown) : number_text(open);
    };
    const std::string lowest = end(limits->lowest, number / 2.0);
    const std::string highest = end(limits->highest, number * 2.0);
    const bool is_whole = number_kind_of(entry.name) == number_kind::whole;
    const double step = is_whole ? 1.0 : round_step(val(highest) - val(lowest));
    return lowest + ":" + highest + ":" + number_text(step);
}

}  // namespace

study_plan_side::study_plan_side(const program& kavetta, QWidget* parent)
    : QWidget(parent),
      kavetta_(kavetta),
      variables_(new QTableWidget(0, 2)),
      entry_(new QComboBox),
      kind_(new QComboBox),
      count_(count_box("study_count", 1, MOST_DESIGNS, FIRST_COUNT)),
      seed_(count_box("study_seed", 0, MOST_SEED, 0)),
      step_(text_box("study_step")),
      with_assist_(new QCheckBox),
      quantity_filter_(text_box("quantity_filter")),
      quantities_(new QListWidget),
      conditions_(text_box("study_conditions")),
      targets_(text_box("study_targets")),
      aims_(text_box("study_aims")) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    add_variables(*layout);
    auto* grid = new QGridLayout;
    add_kind(*grid);
    add_texts(*grid);
    layout->addLayout(grid);
    add_quantities(*layout);
    fill_quantities();
}

void study_plan_side::add_variables(QVBoxLayout& side) {
    variables_->setObjectName("variables");
    show_low_rows(*variables_);
    variables_->horizontalHeader()->setStretchLastSection(true);
    variables_->setSelectionBehavior(QAbstractItemView::SelectRows);
    variables_->setTabKeyNavigation(false);
    entry_->setObjectName("study_entry");
    auto* label = named_label("variables_label");
    label->setBuddy(variables_);
    side.addWidget(label);
    side.addWidget(variables_);
    auto* row = new QHBoxLayout;
    row->addWidget(entry_, 1);
    QPushButton* add = named_button("add_variable");
    QPushButton* remove = named_button("remove_variable");
    row->addWidget(add);
    row->addWidget(remove);
    side.addLayout(row);
    connect(add, &QPushButton::clicked, this, &study_plan_side::add_variable);
    connect(remove, &QPushButton::clicked, this, &study_plan_side::remove_variable);
}

void study_plan_side::add_kind(QGridLayout& grid) {
    kind_->setObjectName("study_kind");
    add_labelled(grid, "kind_label", kind_);
    add_labelled(grid, "count_label", count_);
    add_labelled(grid, "seed_label", seed_);
    add_labelled(grid, "step_label", step_);
    step_->setText("0.01");
    with_assist_->setObjectName("begin_with_assist");
    grid.addWidget(with_assist_, grid.rowCount(), 1);
    connect(kind_, &QComboBox::currentIndexChanged, this, &study_plan_side::show_kind);
}

void study_plan_side::add_texts(QGridLayout& grid) {
    add_labelled(grid, "conditions_label", conditions_);
    add_labelled(grid, "targets_label", targets_);
    add_labelled(grid, "aims_label", aims_);
}

void study_plan_side::add_quantities(QVBoxLayout& side) {
    quantities_->setObjectName("quantities");
    auto* label = named_label("quantities_label");
    label->setBuddy(quantity_filter_);
    side.addWidget(label);
    side.addWidget(quantity_filter_);
    side.addWidget(quantities_);
    connect(quantity_filter_, &QLineEdit::textChanged, this, &study_plan_side::filter_quantities);
}

// What is shown.

void study_plan_side::refresh() {
    const std::int16_t language = kavetta_.app_state.language;
    if (language_ != language) {
        language_ = language;
        variables_->setHorizontalHeaderLabels(
            {text_named("entry_head", language), text_named("values_head", language)});
        fill_entries();
        fill_kinds();
    }
    show_units();
    show_kind();
}

void study_plan_side::fill_entries() {
    const QVariant chosen = entry_->currentData();
    entry_->clear();
    for (const entry_field& field : entry_fields()) {
        if (field.form == "Form1" || field.form == "portdes" || field.form == "Perffrm") {
            entry_->addItem(qt_text(entry_name(field, kavetta_.captions, language_)) + " (" +
                                qt_text(field.name) + ")",
                            qt_text(field.name));
        }
    }
    entry_->setCurrentIndex(entry_->findData(chosen.isValid() ? chosen : FIRST_ENTRY));
    open_as_wide_as_its_items(*entry_);
}

void study_plan_side::fill_kinds() {
    const int chosen = std::max<int>(kind_->currentIndex(), kind_->count() == 0 ? latin_kind : 0);
    kind_->clear();
    for (const char* kind : KINDS) {
        kind_->addItem(text_named(kind, language_));
    }
    kind_->setCurrentIndex(chosen);
}

void study_plan_side::fill_quantities() {
    for (const study_quantity& quantity : listed_quantities(kavetta_)) {
        auto* item = new QListWidgetItem(quantities_);
        item->setData(Qt::UserRole, qt_text(quantity.name));
        const bool is_first =
            std::ranges::find(FIRST_QUANTITIES, quantity.name) != FIRST_QUANTITIES.end();
        item->setCheckState(is_first ? Qt::Checked : Qt::Unchecked);
    }
}

/// Lengths of entries and the capacity have the units in force.
void study_plan_side::show_units() {
    const app_state& state = kavetta_.app_state;
    const std::pair units(state.drawing_units, state.capacity_unit);
    if (shown_units_ == units) {
        return;
    }
    shown_units_ = units;
    int row = 0;
    for (const study_quantity& quantity : listed_quantities(kavetta_)) {
        const std::string unit = quantity.unit.empty() ? "" : " [" + quantity.unit + "]";
        quantities_->item(row)->setText(qt_text(quantity.name + unit));
        ++row;
    }
}

/// A grid has its own number, a search alone has steps and targets.
void study_plan_side::show_kind() {
    const int kind = kind_->currentIndex();
    for (QWidget* box : std::initializer_list<QWidget*>{count_, seed_}) {
        set_usable(*box, kind != grid_kind);
    }
    for (QWidget* box : std::initializer_list<QWidget*>{step_, with_assist_, targets_}) {
        set_usable(*box, kind == search_kind);
    }
}

void study_plan_side::set_usable(QWidget& box, bool is_usable) {
    box.setEnabled(is_usable);
    for (QLabel* label : findChildren<QLabel*>()) {
        if (label->buddy() == &box) {
            label->setEnabled(is_usable);
        }
    }
}

// Variables and quantities.

void study_plan_side::add_variable() {
    const entry_field* field = find_entry(utf8_text(entry_->currentData().toString()));
    if (field != nullptr) {
        add_variable_row(qt_text(field->name), qt_text(first_values(kavetta_, *field)));
    }
}

void study_plan_side::add_variable_row(const QString& control, const QString& values) {
    const int row = variables_->rowCount();
    variables_->insertRow(row);
    auto* name = new QTableWidgetItem(control);
    name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    variables_->setItem(row, 0, name);
    variables_->setItem(row, 1, new QTableWidgetItem(values));
    variables_->setCurrentCell(row, 1);
}

void study_plan_side::remove_variable() {
    variables_->removeRow(variables_->currentRow());
}

void study_plan_side::filter_quantities(const QString& text) {
    for (int row = 0; row < quantities_->count(); ++row) {
        QListWidgetItem* item = quantities_->item(row);
        item->setHidden(!item->text().contains(text, Qt::CaseInsensitive));
    }
}

// What is asked.

study_document study_plan_side::document() const {
    study_document asked;
    for (int row = 0; row < variables_->rowCount(); ++row) {
        asked.varied.push_back(utf8_text(variables_->item(row, 0)->text()) + "=" +
                               utf8_text(variables_->item(row, 1)->text().trimmed()));
    }
    write_sample(asked);
    asked.step = val(commas_to_points(utf8_text(step_->text())));
    for (int row = 0; row < quantities_->count(); ++row) {
        const QListWidgetItem* item = quantities_->item(row);
        if (item->checkState() == Qt::Checked) {
            asked.recorded.push_back(utf8_text(item->data(Qt::UserRole).toString()));
        }
    }
    asked.conditions = parted(conditions_->text());
    asked.targets = parted(targets_->text());
    asked.aims = parted(aims_->text());
    return asked;
}

void study_plan_side::show_document(const study_document& shown) {
    variables_->setRowCount(0);
    for (const std::string& varied : shown.varied) {
        const std::size_t equals = varied.find('=');
        add_variable_row(qt_text(varied.substr(0, equals)), qt_text(varied.substr(equals + 1)));
    }
    show_sample(shown);
    step_->setText(qt_text(number_text(shown.step)));
    for (int row = 0; row < quantities_->count(); ++row) {
        QListWidgetItem* item = quantities_->item(row);
        const std::string name = utf8_text(item->data(Qt::UserRole).toString());
        const bool is_recorded = std::ranges::find(shown.recorded, name) != shown.recorded.end();
        item->setCheckState(is_recorded ? Qt::Checked : Qt::Unchecked);
    }
    conditions_->setText(joined(shown.conditions));
    targets_->setText(joined(shown.targets));
    aims_->setText(joined(shown.aims));
}

/// The number is that of the sample or the budget of the search.
void study_plan_side::write_sample(study_document& asked) const {
    const int kind = kind_->currentIndex();
    const std::string count = std::to_string(count_->value());
    asked.searches = kind == search_kind;
    if (!asked.searches) {
        asked.sample = SAMPLES[static_cast<std::size_t>(kind)] + (kind == grid_kind ? "" : count);
    }
    asked.seed = static_cast<std::uint32_t>(seed_->value());
    asked.budget = static_cast<std::uint64_t>(count_->value());
    asked.begins_with_assist = with_assist_->isChecked();
}

void study_plan_side::show_sample(const study_document& shown) {
    const std::string word = shown.sample.substr(0, shown.sample.find(':') + 1);
    const auto kind = std::ranges::find(SAMPLES, word.empty() ? "grid" : word);
    kind_->setCurrentIndex(shown.searches ? search_kind
                                          : static_cast<int>(kind - SAMPLES.begin()) % search_kind);
    const bool has_count = !shown.searches && !word.empty();
    count_->setValue(has_count ? qt_text(shown.sample.substr(word.size())).toInt()
                               : static_cast<int>(shown.budget));
    seed_->setValue(static_cast<int>(shown.seed));
    with_assist_->setChecked(shown.begins_with_assist);
}

void open_as_wide_as_its_items(QComboBox& list) {
    const int bar = list.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    list.view()->setMinimumWidth(list.view()->sizeHintForColumn(0) + bar);
}

}  // namespace kvt
