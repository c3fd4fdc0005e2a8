#include "ui/parts/accessible_names.hpp"

#include "app/program.hpp"
#include "core/text_table.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <array>

namespace kvt {

namespace {

struct unit_place {
    std::string_view form, control, shown_by;
};

/// The units that stand elsewhere: in a list, in a label of another name, or in the caption of the
/// row's first box.
constexpr auto UNITS_ELSEWHERE = std::to_array<unit_place>({
    {"Form1", "volumereqd", "unittype"},
    {"Form1", "capacity", "units_label"},
    {"Perffrm", "speed_hi", "Label6"},
    {"Perffrm", "pressure_hi", "Label7"},
    {"Perffrm", "young_outer", "Label10"},
    {"Form3", "toolsize", "toolunits"},
    {"Form3", "groovetooltext", "toolunits_groove"},
});

/// What stands in brackets at the end of a caption: "bar" of "Pressure Range (bar)".
QString bracketed(const QString& caption) {
    static const QRegularExpression brackets(R"(\(([^()]*)\)\s*:?$)");
    return brackets.match(caption).captured(1);
}

QString text_of(const QWidget* control) {
    if (const auto* label = qobject_cast<const QLabel*>(control)) {
        return label->text();
    }
    const auto* list = qobject_cast<const QComboBox*>(control);
    return list == nullptr ? QString() : list->currentText();
}

using buddy_labels = QHash<const QWidget*, const QLabel*>;

buddy_labels labels_below(const QWidget& root) {
    buddy_labels labels;
    for (const QLabel* label : root.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            labels.insert(label->buddy(), label);
        }
    }
    return labels;
}

class names_of_form {
  public:
    names_of_form(const program& kavetta, std::string_view form, const QWidget& root)
        : language_(kavetta.app_state.language),
          form_(form),
          root_(root),
          labels_(labels_below(root)) {}

    void give(QWidget& control) const {
        const QString name = name_of(control);
        const QString unit = unit_of(control);
        if (!name.isEmpty()) {
            set_accessible_name(control, with_result(control, name, unit));
            name_editor(control, name);
        }
        if (!unit.isEmpty() && qobject_cast<QLabel*>(&control) == nullptr) {
            set_accessible_description(
                control, (spoken("unit") + unit + ". " + control.toolTip()).trimmed());
        }
    }

    void give(QScrollBar& bar) const {
        set_accessible_name(
            bar, spoken(bar.orientation() == Qt::Horizontal ? "scroll_across" : "scroll_down"));
    }

  private:
    QString spoken(std::string_view name) const {
        return qt_text(form_text("spoken", name, language_));
    }

    QString name_of(const QWidget& control) const {
        const std::string name = utf8_text(control.objectName());
        if (const text_row* row = find_text(text_kind::spoken, form_, name)) {
            return qt_text(row_text(*row, language_));
        }
        const QLabel* label = labels_.value(&control);
        return label == nullptr ? QString() : spoken_caption(label->text());
    }

    QString unit_of(const QWidget& control) const {
        const std::string name = utf8_text(control.objectName());
        const auto* elsewhere = std::ranges::find_if(UNITS_ELSEWHERE, [&](const unit_place& place) {
            return place.form == form_ && place.control == name;
        });
        const QString shown_by = elsewhere == UNITS_ELSEWHERE.end() ? control.objectName() + "_unit"
                                                                    : qt_text(elsewhere->shown_by);
        if (const auto* shown = root_.findChild<QWidget*>(shown_by)) {
            const QString text = text_of(shown);
            const QString unit = bracketed(text);
            return unit.isEmpty() ? text : unit;
        }
        return bracketed(text_of(labels_.value(&control)));
    }

    /// "Approx. Capacity: 13.89 CC/Rev"; an entry is read by itself.
    static QString with_result(const QWidget& control, const QString& name, const QString& unit) {
        const auto* result = qobject_cast<const QLabel*>(&control);
        return result == nullptr || result->text().isEmpty()
                   ? name
                   : (name + ": " + result->text() + " " + unit).trimmed();
    }

    /// What is inside a control and takes its keys.
    static void name_editor(const QWidget& control, const QString& name) {
        if (qobject_cast<const QAbstractSpinBox*>(&control) != nullptr ||
            qobject_cast<const QComboBox*>(&control) != nullptr) {
            for (QLineEdit* editor : control.findChildren<QLineEdit*>()) {
                set_accessible_name(*editor, name);
            }
        }
        if (const auto* tabs = qobject_cast<const QTabWidget*>(&control)) {
            set_accessible_name(*tabs->tabBar(), name);
        }
    }

    std::int16_t language_;
    std::string_view form_;
    const QWidget& root_;
    buddy_labels labels_;
};

}  // namespace

void give_accessible_names(const program& kavetta, std::string_view form, const QWidget& root) {
    const names_of_form names(kavetta, form, root);
    for (QWidget* control : root.findChildren<QWidget*>()) {
        if (auto* bar = qobject_cast<QScrollBar*>(control)) {
            names.give(*bar);
        } else if (!control->objectName().isEmpty()) {
            names.give(*control);
        }
    }
}

void set_accessible_name(QWidget& control, const QString& name) {
    if (control.accessibleName() != name) {
        control.setAccessibleName(name);
    }
}

void set_accessible_description(QWidget& control, const QString& description) {
    if (control.accessibleDescription() != description) {
        control.setAccessibleDescription(description);
    }
}

QString spoken_caption(QString caption) {
    static const QRegularExpression access_key("&(.)");
    static const QRegularExpression end(R"([\s.:]+$)");
    return caption.replace(access_key, R"(\1)").remove(end).simplified();
}

}  // namespace kvt
