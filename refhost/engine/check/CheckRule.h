#pragma once

#include "refhost/engine/check/Finding.h"

#include <optional>

class TaskFacts;
struct NearName;
struct Setting;

/// A rule looks at one setting. It knows annotations and values, never an operation.
using SettingRule = std::optional<Finding> (*)(const Setting &, const TaskFacts &);

/// What a rule has to say for people.
struct Advice
{
    QString message;
    QString consequence;
    QString remedy;
    QString meant = {}; ///< the variable that was probably meant
};

/// A finding about a setting.
Finding findingAt(const Setting &setting, Mistake mistake, Severity severity, const Advice &advice);

/// What comes of an operand, a text or a number, that stands for nothing.
QString nothingThere(const Setting &setting);

/// A text in quotes as it stands in a task file; of a long one the beginning.
QString quoted(const QString &text);

/// The texts in quotes, with commas and, before the last, "or".
QString anyOf(const QStringList &texts);

/// What to do about a name that is not declared, when `near` may have been meant. `sign` is what
/// stands before a name at this place: "$" or nothing.
QString remedyForName(const QString &name, const QString &sign, const NearName &near);
