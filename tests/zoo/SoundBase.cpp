#include "tests/zoo/SoundBase.h"

#include "VariableScope.h"

#include <QMessageLogger>

namespace {

/// The value of an operand: a literal, or the variable it refers to.
QString operandText(const QString &operand, const VariableScope &scope)
{
    const bool isReference = operand.size() > 1 && operand.startsWith(QLatin1Char('$'));
    return isReference ? scope.get(operand.mid(1)).toString() : operand;
}

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
    const QString text = operandText(m_text, *scope);
    return m_mode == 1 ? text + operandText(m_suffix, *scope) : text;
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
