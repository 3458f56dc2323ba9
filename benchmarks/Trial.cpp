#include "benchmarks/Trial.h"

#include "Operation.h"

#include <benchmark/benchmark.h>

#include <QVariantList>

namespace {

QString resultName()
{
    return QStringLiteral("result");
}

/// A value short enough for a message.
QString shown(const QVariant &value)
{
    if (value.type() == QVariant::List)
        return QStringLiteral("a list of %1").arg(value.toList().size());
    const QString text = value.toString();
    const QString start = text.size() > 40 ? text.left(40) + QStringLiteral("...") : text;
    return QStringLiteral("%1 \"%2\" of %3 units")
        .arg(QLatin1String(value.typeName()), start)
        .arg(text.size());
}

/// The name of a list is given as it is, every other operand refers to its variable.
QString reference(const Setup::Operand &operand)
{
    const bool isName = operand.type == VarType::List;
    return isName ? operand.property : QLatin1Char('$') + operand.property;
}

} // namespace

Trial::Trial(const Operation &prototype, const Setup &setup)
    : m_setup(setup)
    , m_step(prototype.clone(nullptr))
{
    const auto set = [this](const QString &property, const QVariant &value) {
        if (!m_step->setProperty(property.toLatin1().constData(), value))
            m_refused = property;
    };
    for (const Setup::Operand &operand : setup.operands()) {
        m_stepScope.declare(operand.property, operand.type, operand.value);
        set(operand.property, reference(operand));
    }
    for (const auto &[property, value] : setup.settings())
        set(property, value);
    set(QStringLiteral("resultVar"), resultName());
    m_stepScope.declare(resultName(), setup.resultType());
    m_bareScope = m_stepScope;
    m_step->setVariableScope(&m_stepScope);
}

Trial::~Trial() = default;

void Trial::runStep() const
{
    m_step->doOperation();
}

void Trial::runBare()
{
    const QVariant result = m_setup.bareWork()(m_bareScope);
    static const QString name = resultName();
    if (m_bareScope.typeOf(name) == m_setup.resultType())
        m_bareScope.set(name, result);
}

void Trial::copyText() const
{
    benchmark::DoNotOptimize(QString(m_text.constData(), m_text.size()));
}

void Trial::chooseText()
{
    const auto consider = [this](const QVariant &value) {
        if (value.type() == QVariant::String && value.toString().size() > m_text.size())
            m_text = value.toString();
    };
    for (const Setup::Operand &operand : m_setup.operands())
        consider(operand.value);
    consider(m_bareScope.get(resultName()));
}

QString Trial::differenceFromBare() const
{
    return difference(m_bareScope.get(resultName()));
}

QString Trial::differenceFromKnown()
{
    if (m_setup.knownResult().isValid())
        return difference(m_setup.knownResult());
    runBare();
    return differenceFromBare();
}

QString Trial::difference(const QVariant &expected) const
{
    if (!m_refused.isEmpty())
        return QStringLiteral("the step has no property %1").arg(m_refused);
    if (!m_stepScope.writtenNames().contains(resultName()))
        return QStringLiteral("the step writes no result");
    const QVariant result = m_stepScope.get(resultName());
    if (result.type() == expected.type() && result == expected)
        return {};
    return QStringLiteral("the step gives %1, Qt gives %2").arg(shown(result), shown(expected));
}
