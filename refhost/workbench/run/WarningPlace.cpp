#include "refhost/workbench/run/WarningPlace.h"

#include "refhost/engine/OperandText.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"

#include "Operation.h"

#include <QDebug>

#include <algorithm>
#include <functional>

namespace {

QVariant valueOf(const PropertySchema &property, const Operation &step)
{
    return step.property(property.name.toUtf8().constData());
}

QString textOf(const PropertySchema &property, const Operation &step)
{
    return valueOf(property, step).toString();
}

bool isWordUnit(QChar unit)
{
    return unit.isLetterOrNumber() || unit == QLatin1Char('_');
}

/// Whether the line holds the word between white space or punctuation.
bool hasWord(const QString &line, const QString &word)
{
    if (word.isEmpty())
        return false;
    for (int at = line.indexOf(word); at >= 0; at = line.indexOf(word, at + 1)) {
        const int end = at + word.size();
        const bool begins = at == 0 || !isWordUnit(line.at(at - 1));
        if (begins && (end == line.size() || !isWordUnit(line.at(end))))
            return true;
    }
    return false;
}

/// Whether the line holds the text in quotes, as a debug stream puts it.
bool hasQuoted(const QString &line, const QString &text)
{
    if (text.size() + 2 > line.size())
        return false;
    QString quoted;
    QDebug(&quoted).nospace() << text;
    return line.contains(quoted);
}

/// Whether the line holds the text in quotes, or as a word where it quotes nothing.
bool cites(const QString &line, const QString &text)
{
    const bool quotes = line.contains(QLatin1Char('"'));
    return quotes ? hasQuoted(line, text) : hasWord(line, text);
}

bool speaksOfVariables(const QString &line)
{
    return line.contains(QStringLiteral("变量")) ||
           line.contains(QStringLiteral("variable"), Qt::CaseInsensitive);
}

/// The word of a line for the type that a variable should have had.
bool namesType(const QString &line, const PropertySchema &property)
{
    static const QVector<QPair<QString, QString>> words{
        {QStringLiteral("string"), QStringLiteral("字符串")},
        {QStringLiteral("list"), QStringLiteral("列表")},
        {QStringLiteral("table"), QStringLiteral("表格")},
        {QStringLiteral("int"), QStringLiteral("数值")},
        {QStringLiteral("double"), QStringLiteral("数值")}};
    const QStringList types = property.restriction.split(QLatin1Char(','));
    return std::any_of(words.cbegin(), words.cend(), [&](const auto &word) {
        return types.contains(word.first) &&
               (line.contains(word.second) || hasWord(line, word.first));
    });
}

/// One line of a step, and what it may be about.
class WarningReader
{
public:
    WarningReader(const QString &line, const Operation &step,
                  const QVector<OperandRecord> &operands)
        : m_line(line)
        , m_step(step)
        , m_operands(operands)
        , m_schema(step)
    {
    }

    QString property() const
    {
        // A text may read like the name of a variable.
        const bool isVariable = speaksOfVariables(m_line);
        const auto first = isVariable ? &WarningReader::namedVariable : &WarningReader::citedValue;
        const auto second = isVariable ? &WarningReader::citedValue : &WarningReader::namedVariable;
        for (const auto search : {first, &WarningReader::unknownChoice, second,
                                  &WarningReader::namedLabel, &WarningReader::missingResult}) {
            QString name = (this->*search)();
            if (!name.isEmpty())
                return name;
        }
        return {};
    }

private:
    using Test = std::function<bool(const PropertySchema &)>;

    QString firstOf(const Test &test) const
    {
        for (const PropertySchema &property : m_schema.properties()) {
            if (test(property))
                return property.name;
        }
        return {};
    }

    static bool holdsName(const PropertySchema &property)
    {
        const PropertyRole role = roleOf(property);
        return role == PropertyRole::Input || role == PropertyRole::Result;
    }

    /// A property with the name of a variable that the line cites. Where there are several, the one
    /// for variables of the type that the line misses.
    QString namedVariable() const
    {
        const Test named = [this](const PropertySchema &property) {
            const QString name = textOf(property, m_step);
            return holdsName(property) && !name.isEmpty() && cites(m_line, name);
        };
        const QString ofType = firstOf([&](const PropertySchema &property) {
            return named(property) && namesType(m_line, property);
        });
        return ofType.isEmpty() ? firstOf(named) : ofType;
    }

    QString unknownChoice() const
    {
        return firstOf([this](const PropertySchema &property) {
            const int choice = valueOf(property, m_step).toInt();
            const bool isKnown = choice >= 0 && choice < property.choices.size();
            return !property.choices.isEmpty() && !isKnown &&
                   hasWord(m_line, QString::number(choice));
        });
    }

    /// An operand that the line cites as it was written or as it was found.
    QString citedValue() const
    {
        const Test cited = [this](const PropertySchema &property) {
            const PropertyRole role = roleOf(property);
            const bool isOperand = role == PropertyRole::Text || role == PropertyRole::Number;
            const QString written = textOf(property, m_step);
            return isOperand && isShown(property, m_step) && hasQuoted(m_line, written);
        };
        const QString found = foundOperand();
        return found.isEmpty() ? firstOf(cited) : found;
    }

    QString foundOperand() const
    {
        for (const OperandRecord &operand : m_operands) {
            if (operand.role != PropertyRole::Input &&
                hasQuoted(m_line, textOfValue(operand.found)))
                return operand.property;
        }
        return {};
    }

    QString namedLabel() const
    {
        return firstOf([this](const PropertySchema &property) {
            // Warnings may be translated like labels, or stand as they are in the sources.
            return (!property.label.isEmpty() && m_line.contains(property.label)) ||
                   (!property.shownLabel.isEmpty() && m_line.contains(property.shownLabel));
        });
    }

    QString missingResult() const
    {
        return firstOf([this](const PropertySchema &property) {
            return roleOf(property) == PropertyRole::Result && textOf(property, m_step).isEmpty() &&
                   m_line.contains(QStringLiteral("结果变量"));
        });
    }

    const QString &m_line;
    const Operation &m_step;
    const QVector<OperandRecord> &m_operands;
    OperationSchema m_schema;
};

} // namespace

QString warningPlace(const QString &line, const Operation &step,
                     const QVector<OperandRecord> &operands, const QStringList &suspects)
{
    const QString property = WarningReader(line, step, operands).property();
    return property.isEmpty() ? suspects.value(0) : property;
}
