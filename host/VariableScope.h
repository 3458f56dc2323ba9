#pragma once

#include "OperationCoreExport.h"
#include "VarType.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

/// The named, typed variables of a running task.
///
/// An ordinary value: copies are independent of each other (and cheap, the content is shared until
/// one of them changes), a moved-from scope is empty and usable. Names are compared exactly, case
/// and white space included. One scope belongs to one thread at a time; different scopes may be
/// used on different threads.
///
/// A step reads and writes through `get`, `set` and `typeOf` only; the rest is the host's.
class OPERATIONCORE_EXPORT VariableScope
{
public:
    /// The current value of the variable called `name`, an invalid `QVariant` when there is none.
    QVariant get(const QString &name) const;

    /// Replaces the value of the variable called `name`, as it is: the caller has compared its type
    /// with `typeOf`. A name that is not declared is ignored, it does not become a variable.
    void set(const QString &name, const QVariant &value);

    /// The declared type of the variable called `name`, `VarType::None` when it is not declared.
    VarType typeOf(const QString &name) const;

    /// Declares the variable called `name`, or declares it anew with another type and value. An
    /// invalid `value` stands for the empty value of the type (0, empty text, false, empty list).
    /// Declaring a variable as `VarType::None` removes it.
    void declare(const QString &name, VarType type, const QVariant &value = QVariant());

    /// The names of all declared variables, in ascending order.
    QStringList names() const;

    /// The names of the variables that `set` has written since they were declared or since
    /// `forgetWrites`, in ascending order; a write of an equal value counts.
    QStringList writtenNames() const;

    /// Starts a new round of `writtenNames`, so that a host can tell what one step wrote.
    void forgetWrites();

private:
    struct Variable
    {
        VarType type = VarType::None;
        QVariant value;
        bool written = false;
    };

    QHash<QString, Variable> m_variables;
};
