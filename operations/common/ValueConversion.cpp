#include "operations/common/ValueConversion.h"

#include "operations/common/Truncation.h"
#include "operations/common/ValueText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <QStringList>

#include <utility>

namespace {

/// A converted value, and whether there was one; without, it is the type's empty value.
using Conversion = std::pair<QVariant, bool>;

bool isText(const QVariant &value)
{
    return value.type() == QVariant::String;
}

bool isList(const QVariant &value)
{
    return value.type() == QVariant::List;
}

bool isEmptyValue(const QVariant &value)
{
    return value.isNull() || (isText(value) && value.toString().isEmpty());
}

QVariant emptyValue(VarType type)
{
    switch (type) {
    case VarType::Int:
        return 0;
    case VarType::Double:
        return 0.0;
    case VarType::String:
        return QString();
    case VarType::Bool:
        return false;
    case VarType::List:
    case VarType::Table:
        return QVariantList();
    default:
        return {};
    }
}

Conversion intFromText(const QString &text)
{
    bool ok = false;
    const int whole = text.toInt(&ok, 10);
    if (ok)
        return {whole, true};
    const double number = text.toDouble(&ok);
    return {ok ? truncateToInt(number) : 0, ok};
}

Conversion toInt(const QVariant &value)
{
    if (value.type() == QVariant::Bool)
        return {value.toBool() ? 1 : 0, true};
    if (isText(value))
        return intFromText(value.toString());
    if (value.canConvert(QVariant::LongLong))
        return {value.toInt(), true};
    return {0, false};
}

Conversion toDouble(const QVariant &value)
{
    if (value.type() == QVariant::Bool)
        return {value.toBool() ? 1.0 : 0.0, true};
    if (isText(value)) {
        bool ok = false;
        const double number = value.toString().toDouble(&ok);
        return {ok ? number : 0.0, ok};
    }
    if (value.canConvert(QVariant::Double))
        return {value.toDouble(), true};
    return {0.0, false};
}

Conversion toText(const QVariant &value)
{
    if (isText(value))
        return {value, true};
    if (isList(value))
        return {QString(), false};
    return {value.toString(), true};
}

Conversion toBool(const QVariant &value)
{
    if (value.type() == QVariant::Bool)
        return {value, true};
    if (isText(value)) {
        bool word = false;
        const bool ok = parseBoolText(value.toString(), &word);
        return {word, ok};
    }
    if (value.canConvert(QVariant::Double))
        return {value.toDouble() != 0.0, true};
    return {false, false};
}

Conversion toList(const QVariant &value)
{
    if (isListLike(value))
        return {value, true};
    QVariantList list;
    // Not trimmed here: a blank before the bracket is a failure.
    const bool ok = isText(value) && value.toString().startsWith(QLatin1Char('[')) &&
                    parseBracketList(value.toString(), &list);
    return {list, ok};
}

QVariantList toTable(const QVariant &value)
{
    if (isText(value))
        return parseJsonTable(value.toString());
    if (!isList(value))
        return {};
    const QVariantList list = value.toList();
    if (!list.isEmpty() && isList(list.first()))
        return list;
    QVariantList table;
    table.append(QVariant(list));
    return table;
}

Conversion convert(const QVariant &value, VarType type)
{
    if (isEmptyValue(value))
        return {emptyValue(type), true};
    switch (type) {
    case VarType::Int:
        return toInt(value);
    case VarType::Double:
        return toDouble(value);
    case VarType::String:
        return toText(value);
    case VarType::Bool:
        return toBool(value);
    case VarType::List:
        return toList(value);
    case VarType::Table:
        return {toTable(value), true};
    default:
        return {value, true};
    }
}

QVariant itemFromText(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? QVariant(number) : QVariant(text);
}

QVariantList rowFromJson(const QJsonArray &cells)
{
    QVariantList row;
    row.reserve(cells.size());
    for (const QJsonValue &cell : cells)
        row.append(cell.toString());
    return row;
}

} // namespace

QVariant convertToVarType(const QVariant &value, VarType type, bool *ok)
{
    const auto [converted, succeeded] = convert(value, type);
    if (ok)
        *ok = succeeded;
    return converted;
}

bool parseBoolText(const QString &text, bool *value)
{
    static const QStringList trueWords{QStringLiteral("true"), QStringLiteral("1"),
                                       QStringLiteral("yes"), QStringLiteral("是"),
                                       QStringLiteral("y")};
    static const QStringList falseWords{QStringLiteral("false"), QStringLiteral("0"),
                                        QStringLiteral("no"),    QStringLiteral("否"),
                                        QStringLiteral("n"),     QStringLiteral("")};
    const QString word = text.trimmed().toLower();
    const bool isTrue = trueWords.contains(word);
    if (!isTrue && !falseWords.contains(word))
        return false;
    *value = isTrue;
    return true;
}

bool parseBracketList(const QString &text, QVariantList *out)
{
    const QString trimmed = text.trimmed();
    if (!trimmed.startsWith(QLatin1Char('[')) || !trimmed.endsWith(QLatin1Char(']')))
        return false;
    QVariantList list;
    const QStringList parts =
        trimmed.mid(1, trimmed.size() - 2).split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QString item = part.trimmed();
        if (!item.isEmpty())
            list.append(itemFromText(item));
    }
    *out = list;
    return true;
}

QVariantList parseJsonTable(const QString &text)
{
    const QJsonArray rows = QJsonDocument::fromJson(text.trimmed().toUtf8()).array();
    QVariantList table;
    table.reserve(rows.size());
    for (const QJsonValue &row : rows) {
        if (!row.isArray())
            return {};
        table.append(QVariant(rowFromJson(row.toArray())));
    }
    return table;
}
