// accessible_names: what a screen reader says of the controls of a form. The one place that gives
// controls their names and the descriptions with their units.
#pragma once

#include <QString>

#include <string_view>

class QWidget;

namespace kvt {

struct program;

/// Gives the controls below root their names and descriptions, in the language and the units that
/// the controls show. Call it when captions, texts and tooltips stand.
///     A name is the spoken row of the text table, else the label whose buddy the control is; that
///     of a result has the result behind it. A control without either keeps its own: a button its
///     caption, a widget what it has set itself.
///     A description is the unit, then the tooltip. The unit is what the label named as the control
///     with "_unit" shows, else what stands in brackets behind the caption; without a unit the
///     tooltip alone is the description, as Qt has it.
void give_accessible_names(const program& kavetta, std::string_view form, const QWidget& root);

/// Sets what a screen reader says when it is another text: each setting is told to it.
void set_accessible_name(QWidget& control, const QString& name);
void set_accessible_description(QWidget& control, const QString& description);

/// A caption without access keys, dots and colon at its end, and double blanks: "Doc&uments..." is
/// "Documents".
QString spoken_caption(QString caption);

}  // namespace kvt
