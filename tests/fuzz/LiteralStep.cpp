#include "tests/fuzz/LiteralStep.h"

#include "Operation.h"
#include "VariableScope.h"

#include <QDebug>
#include <QLocale>
#include <QVariantList>

#include <algorithm>
#include <cmath>
#include <limits>

LiteralStep::LiteralStep(const Operation &step, VariableScope &scope)
    : m_step(step)
    , m_scope(scope)
{
}

void LiteralStep::run()
{
    using Work = void (LiteralStep::*)();
    const struct
    {
        const char *typeId;
        const char *name;
        Work work;
    } steps[] = {
        {"text.append", "TextAppend", &LiteralStep::append},
        {"text.substring", "TextSubstring", &LiteralStep::substring},
        {"text.pad", "TextPad", &LiteralStep::pad},
        {"text.between", "TextBetween", &LiteralStep::between},
        {"text.trim", "TextTrim", &LiteralStep::trim},
        {"text.reverse", "TextReverse", &LiteralStep::reverse},
        {"text.case", "TextCase", &LiteralStep::changeCase},
        {"text.toNumber", "TextToNumber", &LiteralStep::toNumber},
        {"text.fromNumber", "TextFromNumber", &LiteralStep::fromNumber},
        {"text.join", "TextJoin", &LiteralStep::join},
        {"text.split", "TextSplit", &LiteralStep::split},
        {"text.find", "TextFind", &LiteralStep::find},
        {"text.replace", "TextReplace", &LiteralStep::replace},
    };
    for (const auto &step : steps) {
        if (m_step.typeId() != QLatin1String(step.typeId))
            continue;
        if (setting("resultVar").toString().isEmpty())
            m_warnings.append("[" + QString(step.name) + "] 未指定结果变量，已跳过");
        else
            (this->*step.work)();
        return;
    }
    m_warnings.append("no definition of " + m_step.typeId());
}

QVariant LiteralStep::setting(const char *name) const
{
    return m_step.property(name);
}

QVariant LiteralStep::resolve(const QString &operand) const
{
    if (!operand.startsWith("$") || operand.size() < 2) {
        bool ok = false;
        const double number = operand.toDouble(&ok);
        return ok ? QVariant(number) : QVariant(operand);
    }
    const QString rest = operand.mid(1);
    const int dot = rest.indexOf(".");
    if (dot < 1)
        return m_scope.get(rest);
    const QString path = rest.mid(dot + 1);
    const QVariant value = m_scope.get(rest.left(dot));
    return path.isEmpty() ? value : member(value, path);
}

QVariant LiteralStep::member(const QVariant &value, const QString &path) const
{
    if (!value.canConvert(QMetaType::QVariantList))
        return {};
    const auto list = value.value<QVariantList>();
    const QString word = path.toLower();
    if (word == "rows" || word == "count")
        return list.size();
    if (word == "items")
        return value;
    if (word != "columns" || list.isEmpty() || !list.first().canConvert(QMetaType::QVariantList))
        return {};
    int columns = 0;
    for (const QVariant &row : list)
        columns = qMax(columns, row.value<QVariantList>().size());
    return columns;
}

QString LiteralStep::render(const QVariant &value)
{
    if (!value.canConvert(QMetaType::QVariantList))
        return value.toString();
    QStringList pieces;
    for (const QVariant &element : value.value<QVariantList>())
        pieces.append(render(element));
    return pieces.join(", ");
}

QString LiteralStep::text(const char *name) const
{
    return render(resolve(setting(name).toString()));
}

double LiteralStep::number(const char *name, bool *ok) const
{
    const QVariant value = resolve(setting(name).toString());
    if (value.type() == QVariant::String)
        return value.toString().toDouble(ok);
    *ok = value.canConvert(QMetaType::Double);
    return value.toDouble();
}

int LiteralStep::wholeNumber(const char *name, int fallback) const
{
    bool ok = false;
    const double value = std::trunc(number(name, &ok));
    if (!ok)
        return fallback;
    const bool fits = value >= -2147483648.0 && value <= 2147483647.0;
    return fits ? static_cast<int>(value) : std::numeric_limits<int>::min();
}

Qt::CaseSensitivity LiteralStep::sensitivity() const
{
    return setting("ignoreCase").toBool() ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

void LiteralStep::warn(const QString &before, const QString &quoted, const QString &after)
{
    QString quotedText;
    QDebug(&quotedText).nospace() << quoted;
    m_warnings.append(before + " " + quotedText + " " + after);
}

void LiteralStep::warnMode(const QString &what, int mode)
{
    m_warnings.append(what + " " + QString::number(mode) + " ，已跳过");
}

void LiteralStep::storeText(const QString &result)
{
    const QString name = setting("resultVar").toString();
    if (m_scope.typeOf(name) == VarType::String)
        m_scope.set(name, QVariant(result));
    else
        warn("[TextOp] 变量", name, "未声明为字符串，已跳过");
}

void LiteralStep::storeNumber(double result)
{
    const QString name = setting("resultVar").toString();
    switch (m_scope.typeOf(name)) {
    case VarType::None:
        return warn("[TextOp] 变量", name, "未声明，已跳过写入");
    case VarType::Int:
        return m_scope.set(name, QVariant(result).toInt());
    case VarType::String:
        return m_scope.set(name, QVariant(result).toString());
    case VarType::Bool:
        return m_scope.set(name, result != 0.0);
    case VarType::List:
        return warn("[TextOp] 变量", name, "数值类型不匹配，已跳过写入");
    case VarType::Table:
        return m_scope.set(name, QVariantList());
    default:
        return m_scope.set(name, result);
    }
}

void LiteralStep::storeList(const QVariantList &result)
{
    const QString name = setting("resultVar").toString();
    if (m_scope.typeOf(name) == VarType::List)
        m_scope.set(name, result);
    else
        warn("[TextOp] 变量", name, "未声明为列表，已跳过");
}

void LiteralStep::append()
{
    storeText(text("sourceText") + text("appendText"));
}

void LiteralStep::substring()
{
    const QString source = text("sourceText");
    const int start = qMin(qMax(0, wholeNumber("startIndex", 0)), source.size());
    if (setting("lengthMode").toInt() == 1)
        storeText(source.mid(start, qMax(0, wholeNumber("charCount", 0))));
    else
        storeText(source.mid(start));
}

void LiteralStep::pad()
{
    const QString source = text("sourceText");
    const QString fill = text("padText");
    const int total = wholeNumber("totalLength", 0);
    const int index = qMin(qMax(0, wholeNumber("index", 0)), source.size());
    const int count = total < 1 ? fill.size() : qMin(qMax(0, total - source.size()), fill.size());
    const QString piece = fill.left(count);
    switch (setting("position").toInt()) {
    case 1:
        return storeText(source.left(index) + piece + source.mid(index));
    case 2:
        return storeText(source + piece);
    default:
        return storeText(piece + source);
    }
}

void LiteralStep::between()
{
    const QString source = text("sourceText");
    const QString start = text("startMarker");
    const QString end = text("endMarker");
    const int mode = setting("cutMode").toInt();
    if (mode < 0 || mode > 2)
        return warnMode("[TextBetween] 未知截取位置", mode);
    QString result;
    if (mode == 0) {
        const int i = source.indexOf(end, 0, sensitivity());
        result = i < 0 ? QString() : source.left(i);
    } else {
        const int i = source.indexOf(start, 0, sensitivity());
        const int begin = i + start.size();
        const int j = i < 0 || mode == 1 ? -1 : source.indexOf(end, begin, sensitivity());
        if (i >= 0 && mode == 1)
            result = source.mid(begin);
        else if (j >= 0)
            result = source.mid(begin, j - begin);
    }
    storeText(result);
}

void LiteralStep::trim()
{
    QString result = text("sourceText");
    const int mode = setting("mode").toInt();
    if (mode < 0 || mode > 3)
        return warnMode("[TextTrim] 未知模式", mode);
    while ((mode == 0 || mode == 2) && !result.isEmpty() && result.at(0).isSpace())
        result.remove(0, 1);
    while ((mode == 1 || mode == 2) && !result.isEmpty() && result.at(result.size() - 1).isSpace())
        result.chop(1);
    if (mode == 3) {
        QString kept;
        for (const QChar unit : qAsConst(result)) {
            if (!unit.isSpace())
                kept.append(unit);
        }
        result = kept;
    }
    storeText(result);
}

void LiteralStep::reverse()
{
    QString result = text("sourceText");
    std::reverse(result.begin(), result.end());
    storeText(result);
}

void LiteralStep::changeCase()
{
    const QString source = text("sourceText");
    const int mode = setting("mode").toInt();
    if (mode < 0 || mode > 2)
        return warnMode("[TextCase] 未知模式", mode);
    QString result = mode == 0 ? source.toUpper() : source.toLower();
    if (mode == 2 && !result.isEmpty())
        result[0] = result.at(0).toUpper();
    storeText(result);
}

void LiteralStep::toNumber()
{
    const QString source = text("sourceText");
    bool ok = false;
    const double value = source.toDouble(&ok);
    if (ok)
        storeNumber(value);
    else
        warn("[TextToNumber] 无法将", source, "解析为数值，已跳过");
}

void LiteralStep::fromNumber()
{
    bool ok = false;
    const double value = number("value", &ok);
    if (!ok)
        return warn("[TextFromNumber] 无法解析原数值", setting("value").toString(), "，已跳过");
    const int decimals = qMax(0, wholeNumber("decimals", 0));
    storeText(setting("useGrouping").toBool() ? QLocale().toString(value, 'f', decimals)
                                              : QString::number(value, 'f', decimals));
}

void LiteralStep::join()
{
    QVariantList list;
    const QString name = setting("listVar").toString();
    if (!name.isEmpty() && m_scope.typeOf(name) != VarType::List)
        warn("[TextOp] 变量", name, "不是列表类型，已跳过");
    else if (!name.isEmpty() && m_scope.get(name).canConvert(QMetaType::QVariantList))
        list = m_scope.get(name).value<QVariantList>();
    const QString separator = text("separator");
    QString result;
    for (int i = 0; i < list.size(); ++i) {
        if (i > 0)
            result.append(separator);
        result.append(render(list.at(i)));
    }
    storeText(result);
}

void LiteralStep::split()
{
    const QString source = text("sourceText");
    QVariantList pieces;
    if (setting("splitMode").toInt() == 0) {
        const qint64 width = qMax(1, wholeNumber("width", 1));
        for (qint64 i = 0; i < source.size(); i += width)
            pieces.append(source.mid(static_cast<int>(i), static_cast<int>(width)));
        return storeList(pieces);
    }
    const QString separator = text("separator");
    const QStringList parts = separator.isEmpty()
                                  ? QStringList(source)
                                  : source.split(separator, Qt::KeepEmptyParts, Qt::CaseSensitive);
    for (const QString &part : parts)
        pieces.append(part);
    storeList(pieces);
}

void LiteralStep::find()
{
    const QString source = text("sourceText");
    storeNumber(source.indexOf(text("searchText"), 0, sensitivity()));
}

void LiteralStep::replace()
{
    QString result = text("sourceText");
    const QString search = text("oldText");
    const QString replacement = text("newText");
    if (setting("replaceScope").toInt() != 1)
        return storeText(result.replace(search, replacement, sensitivity()));
    const int i = result.indexOf(search, 0, sensitivity());
    if (i >= 0)
        result = result.left(i) + replacement + result.mid(i + search.size());
    storeText(result);
}
