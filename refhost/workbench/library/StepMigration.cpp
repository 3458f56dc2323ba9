#include "refhost/workbench/library/StepMigration.h"

#include "Operation.h"

#include <QDataStream>
#include <QMetaProperty>

namespace {

constexpr auto streamVersion = QDataStream::Qt_5_15;

QByteArray recordOf(const Operation &step)
{
    QByteArray record;
    QDataStream stream(&record, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    step.saveOperation(stream);
    return record;
}

/// Whether the step reads the record from end to end.
bool takesRecord(Operation &step, const QByteArray &record)
{
    QDataStream stream(record);
    stream.setVersion(streamVersion);
    step.loadOperation(stream);
    return stream.status() == QDataStream::Ok && stream.atEnd();
}

/// The host's own state of a step, which is no property.
void copyBase(const Operation &from, Operation &to)
{
    QByteArray record;
    QDataStream out(&record, QIODevice::WriteOnly);
    from.Operation::saveOperation(out);
    QDataStream in(record);
    to.Operation::loadOperation(in);
}

QList<QMetaProperty> propertiesOf(const Operation &step)
{
    QList<QMetaProperty> properties;
    const QMetaObject &meta = *step.metaObject();
    for (int i = Operation::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i)
        properties.append(meta.property(i));
    return properties;
}

bool hasProperty(const Operation &step, const QMetaProperty &property)
{
    return step.metaObject()->indexOfProperty(property.name()) >= 0;
}

/// Whether `step` has a property of `old` with another value.
bool differsInShared(const Operation &old, const Operation &step)
{
    const QList<QMetaProperty> properties = propertiesOf(old);
    for (const QMetaProperty &property : properties) {
        if (hasProperty(step, property) && property.read(&old) != step.property(property.name()))
            return true;
    }
    return false;
}

/// Sets what both have. The names of those that did not come out the same.
QStringList copyProperties(const Operation &old, Operation &step)
{
    QStringList lost;
    const QList<QMetaProperty> properties = propertiesOf(old);
    for (const QMetaProperty &property : properties) {
        const QVariant value = property.read(&old);
        if (hasProperty(step, property))
            step.setProperty(property.name(), value);
        if (step.property(property.name()) != value)
            lost.append(QString::fromUtf8(property.name()));
    }
    return lost;
}

QStringList namesMissing(const Operation &old, const Operation &step)
{
    QStringList missing;
    const QList<QMetaProperty> properties = propertiesOf(old);
    for (const QMetaProperty &property : properties) {
        if (!hasProperty(step, property))
            missing.append(QString::fromUtf8(property.name()));
    }
    return missing;
}

} // namespace

MigratedStep migrateStep(const Operation &old, const Operation &prototype)
{
    std::unique_ptr<Operation> step(prototype.clone(nullptr));
    if (takesRecord(*step, recordOf(old)) && !differsInShared(old, *step)) {
        const QStringList missing = namesMissing(old, *step);
        return {std::move(step), missing};
    }
    step.reset(prototype.clone(nullptr));
    copyBase(old, *step);
    const QStringList lost = copyProperties(old, *step);
    return {std::move(step), lost};
}
