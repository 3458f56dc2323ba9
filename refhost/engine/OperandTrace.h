#pragma once

#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QVector>

class Operation;
class VariableScope;
struct QMetaObject;

/// An operand of a step: as it was written and what the step found. The value is shared with the
/// scope it came from.
struct OperandRecord
{
    QString property;
    QString label;
    QString written;
    QVariant found; ///< invalid when there was no such value
    bool isReference = false;
    PropertyRole role = PropertyRole::Text; ///< tells what the step takes the value for
};

Q_DECLARE_TYPEINFO(OperandRecord, Q_MOVABLE_TYPE);

/// Reads the operands of steps that are about to run.
class OperandTrace
{
public:
    /// The operands that the editor of `step` shows, in their order, as the step will find them on
    /// `scope`.
    QVector<OperandRecord> read(const Operation &step, const VariableScope &scope);

private:
    const OperationSchema &schemaOf(const Operation &step);

    QHash<const QMetaObject *, OperationSchema> m_schemas; ///< read once for each class
};
