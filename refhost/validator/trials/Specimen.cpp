#include "refhost/validator/trials/Specimen.h"

#include "refhost/engine/VarTypeName.h"
#include "refhost/validator/CheckContext.h"
#include "refhost/validator/Outcome.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

namespace {

QString resultProperty()
{
    return QStringLiteral("resultVar");
}

} // namespace

Specimen::Specimen(Operation &prototype, CheckContext &context)
    : m_prototype(prototype)
    , m_context(context)
    , m_name(context.nameOf(prototype))
    , m_schema(prototype)
{
}

bool Specimen::hasResultVariable() const
{
    return m_schema.property(resultProperty()) != nullptr;
}

VarType Specimen::resultType() const
{
    const PropertySchema *const property = m_schema.property(resultProperty());
    const QString word =
        property ? property->restriction.section(QLatin1Char(','), 0, 0) : QString();
    if (word == QLatin1String("scalar"))
        return VarType::Double;
    const VarType type = varTypeFromName(word);
    return type == VarType::None ? VarType::String : type;
}

void Specimen::doing(const QString &activity)
{
    m_context.doing(m_name + QStringLiteral(": ") + activity);
}

bool Specimen::canBeCloned()
{
    doing(QStringLiteral("clone"));
    Operation *copy = nullptr;
    const auto thrown = thrownBy([&] { copy = m_prototype.clone(nullptr); });
    return !thrown && copy && copy != &m_prototype;
}

std::unique_ptr<Operation> Specimen::newStep()
{
    return std::unique_ptr<Operation>(m_prototype.clone(nullptr));
}

void Specimen::fail(const QString &detail)
{
    m_failures.append(detail);
}

void Specimen::warn(const QString &detail)
{
    m_warnings.append(detail);
}

void Specimen::remark(const QString &detail)
{
    m_remarks.append(detail);
}

void Specimen::addFindingsTo(Outcome &outcome) const
{
    for (const QString &detail : firstOf(m_failures))
        outcome.fail(detail);
    for (const QString &detail : firstOf(m_warnings))
        outcome.warn(detail);
    for (const QString &detail : firstOf(m_remarks))
        outcome.remark(detail);
}

QStringList Specimen::firstOf(const QStringList &details) const
{
    constexpr int most = 3;
    QStringList first;
    for (const QString &detail : details.mid(0, most))
        first.append(m_name + QStringLiteral(": ") + detail);
    if (details.size() > most)
        first.append(QStringLiteral("%1: and %2 more").arg(m_name).arg(details.size() - most));
    return first;
}
