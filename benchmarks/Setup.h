#pragma once

#include "VarType.h"

#include <QString>
#include <QVariant>
#include <QVector>

#include <utility>

class VariableScope;

/// What the definition of an operation makes of the operands in a scope, by Qt's own facility and
/// nothing else.
using BareWork = QVariant (*)(const VariableScope &);

/// One step to measure: its operands, its other settings, and what to compare it with.
class Setup
{
public:
    /// An operand, handed over in a variable that has the name of its property.
    struct Operand
    {
        QString property;
        VarType type;
        QVariant value;
    };

    /// A step whose result goes into a variable of `resultType`.
    Setup(VarType resultType, BareWork work)
        : m_resultType(resultType)
        , m_bareWork(work)
    {
    }

    Setup &text(const QString &property, const QString &value)
    {
        return operand(property, VarType::String, value);
    }
    Setup &number(const QString &property, int value)
    {
        return operand(property, VarType::Int, value);
    }
    Setup &operand(const QString &property, VarType type, const QVariant &value)
    {
        m_operands.append({property, type, value});
        return *this;
    }

    /// A property that is no operand.
    Setup &setting(const QString &property, const QVariant &value)
    {
        m_settings.append({property, value});
        return *this;
    }

    /// States the result beforehand, where Qt would take too long to find it.
    Setup &gives(const QVariant &result)
    {
        m_knownResult = result;
        return *this;
    }

    VarType resultType() const { return m_resultType; }
    BareWork bareWork() const { return m_bareWork; }
    const QVector<Operand> &operands() const { return m_operands; }
    const QVector<std::pair<QString, QVariant>> &settings() const { return m_settings; }
    const QVariant &knownResult() const { return m_knownResult; }

private:
    VarType m_resultType;
    BareWork m_bareWork;
    QVector<Operand> m_operands;
    QVector<std::pair<QString, QVariant>> m_settings;
    QVariant m_knownResult;
};
