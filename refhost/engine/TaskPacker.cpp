#include "refhost/engine/TaskPacker.h"

#include "refhost/engine/PackedForm.h"
#include "refhost/engine/PackedFrame.h"
#include "refhost/engine/PackedValue.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/TaskProblem.h"
#include "refhost/engine/VariableCheck.h"

#include "Operation.h"

#include <QDataStream>

namespace {

std::optional<Problem> writeVariables(QDataStream &stream, const QList<TaskVariable> &variables)
{
    VariableCheck check;
    stream << static_cast<quint32>(variables.size());
    for (const TaskVariable &variable : variables) {
        if (auto problem = check.check(variable))
            return problem;
        stream << variable.name << static_cast<quint8>(variable.type);
        if (auto problem = writePackedValue(stream, variable.value)) {
            problem->place = variablePlace(variable.name) + QStringLiteral(".value");
            return problem;
        }
    }
    return std::nullopt;
}

/// The record of a step, from a stream of its own: what the step does to it touches nothing else.
QByteArray recordOf(const Operation &step)
{
    QByteArray record;
    QDataStream stream(&record, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::BigEndian);
    stream.setVersion(PackedForm::recordVersion);
    step.saveOperation(stream);
    return record;
}

void writeSteps(QDataStream &stream, const std::vector<std::unique_ptr<Operation>> &steps)
{
    stream << static_cast<quint32>(steps.size());
    for (const auto &step : steps) {
        const QByteArray record = recordOf(*step);
        stream << step->typeId() << static_cast<quint32>(record.size());
        stream.writeRawData(record.constData(), record.size());
    }
}

} // namespace

Result<QByteArray> packTask(const Task &task)
{
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    PackedForm::prepare(stream);
    if (const auto problem = writeVariables(stream, task.variables))
        return *problem;
    writeSteps(stream, task.steps);
    return packedFrame(content);
}
