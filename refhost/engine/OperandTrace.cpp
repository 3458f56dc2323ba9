#include "refhost/engine/OperandTrace.h"

#include "refhost/engine/OperandText.h"

#include "Operation.h"
#include "VariableScope.h"

namespace {

bool isOperand(const PropertySchema &property, const Operation &step)
{
    const PropertyRole role = roleOf(property);
    return role != PropertyRole::Result && role != PropertyRole::Other && isShown(property, step);
}

OperandRecord readProperty(const PropertySchema &property, const Operation &step,
                           const VariableScope &scope)
{
    OperandRecord record;
    record.property = property.name;
    record.label = property.shownLabel;
    record.role = roleOf(property);
    record.written = step.property(property.name.toUtf8().constData()).toString();
    if (record.role == PropertyRole::Input) {
        record.found = scope.get(record.written);
        return record;
    }
    const OperandText operand = readOperand(record.written);
    record.isReference = operand.isReference;
    record.found = operandValue(operand, scope);
    return record;
}

} // namespace

QVector<OperandRecord> OperandTrace::read(const Operation &step, const VariableScope &scope)
{
    QVector<OperandRecord> records;
    for (const PropertySchema &property : schemaOf(step).properties()) {
        if (isOperand(property, step))
            records.append(readProperty(property, step, scope));
    }
    return records;
}

const OperationSchema &OperandTrace::schemaOf(const Operation &step)
{
    const QMetaObject *const type = step.metaObject();
    auto known = m_schemas.find(type);
    if (known == m_schemas.end())
        known = m_schemas.insert(type, OperationSchema(step));
    return *known;
}
