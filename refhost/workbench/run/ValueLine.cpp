#include "refhost/workbench/run/ValueLine.h"

#include "refhost/engine/JsonValue.h"

#include <QLocale>
#include <QVariantList>

#include <algorithm>

namespace {

/// What a reader would not see, or take for something else.
bool isUnseen(QChar unit)
{
    switch (unit.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Separator_Space:
        return unit != QLatin1Char(' ');
    default:
        return false;
    }
}

/// As it is written in a task file: "\n", "\t", "\u00a0".
QString escaped(QChar unit)
{
    switch (unit.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
    }
}

bool isPair(const QString &text, int i)
{
    return text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
}

/// The beginning of a text; a surrogate pair is not cut in two.
QString beginning(const QString &text, int most)
{
    if (text.size() <= most)
        return text;
    return text.left(isPair(text, most - 1) ? most - 1 : most);
}

QString quoted(const QString &text)
{
    QString inner = text;
    inner.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    inner.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + ValueLine::visible(inner) + QLatin1Char('"');
}

/// Appends the value, and no more when `line` is longer than `most`.
void append(QString &line, const QVariant &value, int most)
{
    if (value.userType() == QMetaType::QString) {
        line += quoted(beginning(value.toString(), qMax(1, most)));
        return;
    }
    if (value.userType() != QMetaType::QVariantList) {
        line += jsonText(variantToJson(value));
        return;
    }
    line += QLatin1Char('[');
    const QVariantList elements = value.toList();
    for (int i = 0; i < elements.size() && line.size() <= most; ++i) {
        if (i > 0)
            line += QStringLiteral(", ");
        append(line, elements.at(i), most);
    }
    line += QLatin1Char(']');
}

} // namespace

QString ValueLine::of(const QVariant &value, int most)
{
    if (!value.isValid())
        return tr("（没有值）");
    const QLocale locale;
    if (value.userType() == QMetaType::QString) {
        const QString text = value.toString();
        if (text.size() <= most)
            return quoted(text);
        return tr("%1…（共 %2 个单元）")
            .arg(quoted(beginning(text, most)), locale.toString(text.size()));
    }
    QString line;
    append(line, value, most);
    if (line.size() <= most)
        return line;
    return tr("%1…（共 %2 项）").arg(beginning(line, most), locale.toString(value.toList().size()));
}

QString ValueLine::visible(const QString &text)
{
    const auto isPlain = [](QChar unit) { return !unit.isSurrogate() && !isUnseen(unit); };
    if (std::all_of(text.cbegin(), text.cend(), isPlain))
        return text;
    QString line;
    line.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (isPair(text, i)) {
            line += unit;
            line += text.at(++i);
        } else if (unit.isSurrogate() || isUnseen(unit)) {
            line += escaped(unit);
        } else {
            line += unit;
        }
    }
    return line;
}
