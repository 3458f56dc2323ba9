#include "tests/zoo/SoundBase.h"

#include "examples/plugin/Operand.h"

#include "VariableScope.h"

#include <QMessageLogger>

namespace {

QList<QMetaProperty> propertiesOf(const QObject &object)
{
    QList<QMetaProperty> properties;
    const QMetaObject &meta = *object.metaObject();
    for (int i = Operation::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i)
        properties.append(meta.property(i));
    return properties;
}

} // namespace

void SoundBase::doOperation() const
{
    if (!scope)
        return;
    if (!resultVar().isEmpty() && scope->typeOf(resultVar()) == VarType::String)
        scope->set(resultVar(), result());
    else
        QMessageLogger().warning("[Sound] no such string variable");
}

QString SoundBase::result() const
{
    return m_mode == 1 ? valueOf(m_text) + valueOf(m_suffix) : valueOf(m_text);
}

QString SoundBase::valueOf(const QString &operand) const
{
    return operandText(operand, *scope);
}

void SoundBase::saveOperation(QDataStream &stream) const
{
    Operation::saveOperation(stream);
    for (const QMetaProperty &property : propertiesOf(*this)) {
        const QVariant value = property.read(this);
        if (value.type() == QVariant::Int)
            stream << value.toInt();
        else
            stream << value.toString();
    }
}

void SoundBase::loadOperation(QDataStream &stream)
{
    Operation::loadOperation(stream);
    for (const QMetaProperty &property : propertiesOf(*this)) {
        int number = 0;
        QString text;
        if (property.type() == QVariant::Int) {
            stream >> number;
            property.write(this, number);
        } else {
            stream >> text;
            property.write(this, text);
        }
    }
}

void SoundBase::copyFrom(const SoundBase &other)
{
    baseState = other.baseState;
    for (const QMetaProperty &property : propertiesOf(other))
        property.write(this, property.read(&other));
}
