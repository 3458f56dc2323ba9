#include "refhost/engine/TaskDifference.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/ExactValue.h"
#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/TaskProblem.h"

#include "Operation.h"

#include <QDataStream>

namespace {

Problem lost(const QString &place, const QString &message)
{
    return {Problem::Reason::BeyondJson, {}, place, message};
}

std::optional<Problem> lostOfValue(const QVariant &value, const QVariant &back,
                                   const QString &place)
{
    if (isSameValue(value, back))
        return std::nullopt;
    const QVariantList list = value.toList();
    const QVariantList backList = back.toList();
    if (!list.isEmpty() && list.size() == backList.size()) {
        for (int i = 0; i < list.size(); ++i) {
            const QString elementPlace = QStringLiteral("%1[%2]").arg(place).arg(i);
            if (auto problem = lostOfValue(list.at(i), backList.at(i), elementPlace))
                return problem;
        }
    }
    return lost(place, EngineText::tr("%1; as JSON it would come back as %2")
                           .arg(valueWords(value), valueWords(back)));
}

std::optional<Problem> lostOfVariables(const Task &task, const Task &back)
{
    if (task.variables.size() != back.variables.size()) {
        return lost(QStringLiteral("variables"),
                    EngineText::tr("%1 of them; from JSON %2 would come back")
                        .arg(QString::number(task.variables.size()),
                             QString::number(back.variables.size())));
    }
    for (int i = 0; i < task.variables.size(); ++i) {
        const TaskVariable &variable = task.variables.at(i);
        const TaskVariable &backVariable = back.variables.at(i);
        const QString place = variablePlace(variable.name);
        if (backVariable.name != variable.name) {
            return lost(place, EngineText::tr("from JSON %1 would come back in its place")
                                   .arg(jsonText(backVariable.name)));
        }
        if (auto problem =
                lostOfValue(variable.value, backVariable.value, place + QStringLiteral(".value")))
            return problem;
    }
    return std::nullopt;
}

/// The record of a step without that of the base class, which is the host's.
QByteArray ownRecord(const Operation &step)
{
    QByteArray base;
    QDataStream baseStream(&base, QIODevice::WriteOnly);
    step.Operation::saveOperation(baseStream);
    QByteArray record;
    QDataStream stream(&record, QIODevice::WriteOnly);
    step.saveOperation(stream);
    return record.mid(base.size());
}

std::optional<Problem> lostOfStep(const Operation &step, const Operation &back,
                                  const QString &place)
{
    const OperationSchema schema(step);
    for (const PropertySchema &property : schema.properties()) {
        const QVariant backValue = back.property(property.name.toLatin1().constData());
        if (auto problem = lostOfValue(property.defaultValue, backValue,
                                       place + QLatin1Char('.') + property.name))
            return problem;
    }
    if (ownRecord(step) == ownRecord(back))
        return std::nullopt;
    return lost(place, EngineText::tr("%1 keeps more than its properties; JSON has only these")
                           .arg(step.typeId()));
}

} // namespace

std::optional<Problem> lostInJson(const Task &task, const Task &back)
{
    if (auto problem = lostOfVariables(task, back))
        return problem;
    for (std::size_t i = 0; i < task.steps.size(); ++i) {
        const QString place = stepPlace(static_cast<int>(i));
        if (auto problem = lostOfStep(*task.steps[i], *back.steps[i], place))
            return problem;
    }
    return std::nullopt;
}
