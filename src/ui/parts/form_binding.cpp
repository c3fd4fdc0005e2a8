#include "ui/parts/form_binding.hpp"

#include "app/program.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ui/parts/entry_validator.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace kvt {

namespace {

/// The row of a table of named fields, on the form alone: some names stand on several forms.
template <typename row>
const row* find_on_form(std::span<const row> table, std::string_view form, std::string_view name) {
    for (const row& candidate : table) {
        if (candidate.form == form && candidate.name == name) {
            return &candidate;
        }
    }
    return nullptr;
}

void show_in_box(QLineEdit& box, const std::string& text) {
    const QString shown = qt_text(text);
    if (box.text() != shown) {
        box.setText(shown);
        box.setCursorPosition(0);
    }
}

}  // namespace

form_binding::form_binding(form_context context, std::string form, QWidget& root)
    : context_(context), form_(std::move(form)), root_(root) {
    bind_entries();
}

void form_binding::bind_entries() {
    command_runner& runner = context_.runner;
    for (const entry_field& field : entry_fields()) {
        if (field.form != form_) {
            continue;
        }
        std::string& entry = context_.kavetta.entries.*field.member;
        if (auto* box = root_.findChild<QLineEdit*>(qt_text(field.name))) {
            QObject::connect(box, &QLineEdit::textEdited, box,
                             [&entry, &runner](const QString& text) {
                                 entry = utf8_text(text);
                                 runner.note_edit();
                             });
            // A project file dropped on a box is one dropped on the window.
            box->setAcceptDrops(false);
            validate_number(*box, [context = context_] {
                const std::int16_t language = context.kavetta.app_state.language;
                context.person.show_status(message_text(message::number_refused, language));
            });
        } else if (auto* check = root_.findChild<QAbstractButton*>(qt_text(field.name))) {
            QObject::connect(check, &QAbstractButton::clicked, check,
                             [&entry, &runner](bool checked) {
                                 entry.assign(1, checked ? '1' : '0');
                                 runner.note_edit();
                             });
        }
    }
}

void form_binding::refresh() {
    for (QWidget* control : root_.findChildren<QWidget*>()) {
        if (!control->objectName().isEmpty()) {
            refresh_control(*control);
        }
    }
}

void form_binding::refresh_control(QWidget& control) {
    const std::string name = utf8_text(control.objectName());
    if (const entry_field* entry = find_on_form(entry_fields(), form_, name)) {
        const std::string& text = context_.kavetta.entries.*entry->member;
        if (auto* box = qobject_cast<QLineEdit*>(&control)) {
            show_in_box(*box, text);
        } else if (auto* check = qobject_cast<QAbstractButton*>(&control)) {
            check->setChecked(text == "1");
        }
    }
    show_text(control, name);
    show_enabled(control, name);
    if (find_text(text_kind::tooltip, form_, name) != nullptr) {
        control.setToolTip(tooltip_of(context_.kavetta, form_, name));
    }
}

void form_binding::show_text(QWidget& control, std::string_view name) {
    auto* label = qobject_cast<QLabel*>(&control);
    if (const label_field* output = find_on_form(label_fields(), form_, name);
        output != nullptr && label != nullptr) {
        label->setText(qt_text(context_.kavetta.labels.*output->member));
        return;
    }
    if (find_caption(form_, name) == nullptr) {
        return;
    }
    const QString caption = caption_of(context_.kavetta, form_, name);
    if (label != nullptr) {
        label->setText(caption);
    } else if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
        button->setText(caption);
    } else if (auto* group = qobject_cast<QGroupBox*>(&control)) {
        group->setTitle(caption);
    } else if (auto* list = qobject_cast<QComboBox*>(&control)) {
        list->setPlaceholderText(caption);
    }
}

void form_binding::show_enabled(QWidget& control, std::string_view name) {
    // The label of an entry can be used when the entry can.
    const auto* label = qobject_cast<QLabel*>(&control);
    if (label != nullptr && label->buddy() != nullptr) {
        const std::string buddy = utf8_text(label->buddy()->objectName());
        control.setEnabled(is_enabled(context_.kavetta.enabling, form_, buddy));
        return;
    }
    if (find_on_form(enabling_fields(), form_, name) != nullptr) {
        control.setEnabled(is_enabled(context_.kavetta.enabling, form_, name));
    }
}

QString caption_of(const program& kavetta, std::string_view form, std::string_view control) {
    return qt_text(kavetta.captions.of(form, control));
}

QString tooltip_of(const program& kavetta, std::string_view form, std::string_view control) {
    const text_row* row = find_text(text_kind::tooltip, form, control);
    return row == nullptr ? QString() : qt_text(row_text(*row, kavetta.app_state.language));
}

bool is_enabled(const enabling& state, std::string_view form, std::string_view control) {
    const enabling_field* field = find_on_form(enabling_fields(), form, control);
    return field == nullptr || state.*field->member;
}

}  // namespace kvt
