#include "refhost/validator/trials/RandomTask.h"

#include "refhost/validator/trials/RandomSource.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/SampleSettings.h"
#include "refhost/validator/trials/Specimen.h"

#include "Operation.h"

namespace {

const QList<VarType> allTypes{VarType::Int,  VarType::Double, VarType::String,
                              VarType::Bool, VarType::List,   VarType::Table};

QVariant randomValue(RandomSource &source, VarType type)
{
    switch (type) {
    case VarType::Int:
        return source.integer();
    case VarType::Double:
        return source.real();
    case VarType::Bool:
        return source.onceIn(2);
    case VarType::List:
        return source.list();
    case VarType::Table:
        return source.table();
    default:
        return source.text();
    }
}

/// Names that are legal, though nobody would think of them.
QList<QString> strangeNames()
{
    constexpr int longName = 3000;
    return {QStringLiteral(" "),    QStringLiteral("$"),    QStringLiteral("$line"),
            QStringLiteral("a.b"),  QStringLiteral("变量"), QString(longName, QLatin1Char('n')),
            QString(QChar(0x202E)), QString(QChar(0xD83D)), QString(QChar(0)),
            QStringLiteral("\"\n"), QStringLiteral("Line")};
}

class TaskMaker
{
public:
    TaskMaker(RandomSource &source, Specimen &specimen)
        : m_source(source)
        , m_specimen(specimen)
    {
    }

    Task make()
    {
        for (const VarType type : allTypes)
            declare(sampleName(type), type);
        declare(QStringLiteral("other"), VarType::String);
        declare(m_source.oneOf(strangeNames()), m_source.oneOf(allTypes));
        declare(resultName(),
                m_source.onceIn(8) ? m_source.oneOf(allTypes) : m_specimen.resultType());
        auto step = m_specimen.newStep();
        for (const PropertySchema &property : m_specimen.schema().properties())
            TrialSetting{property.name, value(property)}.applyTo(*step);
        m_task.steps.push_back(std::move(step));
        return std::move(m_task);
    }

private:
    void declare(const QString &name, VarType type)
    {
        if (!m_task.variable(name))
            m_task.variables.append({name, type, randomValue(m_source, type)});
    }

    QString name()
    {
        return m_source.onceIn(12) ? m_source.text() : m_source.oneOf(m_task.variables).name;
    }

    QString reference()
    {
        const QString path =
            m_source.onceIn(4)
                ? m_source.oneOf<QString>({QStringLiteral(".Count"), QStringLiteral(".rows"),
                                           QStringLiteral(".Columns"), QStringLiteral(".Items"),
                                           QStringLiteral(".objectName"), QStringLiteral(".x.y"),
                                           QStringLiteral(".")})
                : QString();
        return QLatin1Char('$') + name() + path;
    }

    QVariant value(const PropertySchema &property)
    {
        if (property.name == QLatin1String("resultVar") && !m_source.onceIn(8))
            return resultName();
        switch (property.defaultValue.userType()) {
        case QMetaType::QString:
            return text(property);
        case QMetaType::Int:
            return property.choices.isEmpty() || m_source.onceIn(6)
                       ? m_source.integer()
                       : m_source.below(property.choices.size());
        case QMetaType::Bool:
            return m_source.onceIn(2);
        case QMetaType::Double:
            return m_source.real();
        default:
            return property.defaultValue;
        }
    }

    QString text(const PropertySchema &property)
    {
        if (isVariableName(property))
            return m_source.onceIn(20) ? QString() : name();
        if (m_source.onceIn(2))
            return reference();
        return isNumberOperand(property) && !m_source.onceIn(8) ? m_source.numberText()
                                                                : m_source.text();
    }

    RandomSource &m_source;
    Specimen &m_specimen;
    Task m_task;
};

} // namespace

Task randomTask(RandomSource &source, Specimen &specimen)
{
    return TaskMaker(source, specimen).make();
}
