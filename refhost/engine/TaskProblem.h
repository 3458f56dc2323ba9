#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/Problem.h"

#include <QString>
#include <QStringList>

// What readers and writers of tasks say alike, whatever the form of the task.

/// "variables.line": where the variable called `name` stands.
QString variablePlace(const QString &name);

/// "steps[3]": where the step at `index` stands, counted from 0.
QString stepPlace(int index);

/// That a variable at `place` has no name.
Problem emptyName(const QString &place);

// Of a name that is not known, a problem lists the names that are, and suggests the nearest one.

/// That `found`, at `place`, names none of the `known` types, or is missing.
Problem unknownType(const QString &place, const JsonValue &found, const QStringList &known);

/// Returns the problem with the key `name` of the object at `place`, which is none of `known`.
Problem unknownKey(const QString &place, const QString &name, const QStringList &known);

/// Returns the problem with the property `name`, which the operation `typeId` does not have. Its
/// properties are `known`.
Problem unknownProperty(const QString &place, const QString &name, const QString &typeId,
                        const QStringList &known);

/// That the task, whose variables are `known`, has no variable `name`, which `place` asks for.
Problem unknownVariable(const QString &place, const QString &name, const QStringList &known);

/// The same for several `names`, or for one.
Problem unknownVariables(const QString &place, const QStringList &names, const QStringList &known);
