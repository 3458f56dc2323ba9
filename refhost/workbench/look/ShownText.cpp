#include "refhost/workbench/look/ShownText.h"

namespace {

constexpr int toolTipLimit = 2000;
constexpr ushort controlPictures = 0x2400;
constexpr ushort deletePicture = 0x2421;

bool turnsDirection(ushort unit)
{
    return unit == 0x200e || unit == 0x200f || (unit >= 0x202a && unit <= 0x202e) ||
           (unit >= 0x2066 && unit <= 0x2069);
}

QChar shownUnit(QChar unit)
{
    const ushort code = unit.unicode();
    if (code == '\n' || code == '\r' || unit.category() == QChar::Separator_Line ||
        unit.category() == QChar::Separator_Paragraph)
        return QChar(0x21b5);
    if (code == '\t')
        return QChar(0x21e5);
    if (code < 0x20)
        return QChar(static_cast<ushort>(controlPictures + code));
    if (code == 0x7f)
        return QChar(deletePicture);
    if (unit.category() == QChar::Other_Control || turnsDirection(code))
        return QChar::ReplacementCharacter;
    return unit;
}

/// The first units of a text, surrogate pairs kept together; "…" stands for what is missing.
QString beginning(const QString &text, int limit)
{
    if (text.size() <= limit)
        return text;
    const int size = limit > 0 && text.at(limit - 1).isHighSurrogate() ? limit - 1 : limit;
    return text.left(size) + QChar(0x2026);
}

} // namespace

QString shownLine(const QString &text, int limit)
{
    QString line = beginning(text, limit);
    // A line break of two characters is one.
    line.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar &unit : line)
        unit = shownUnit(unit);
    return line;
}

QString shownToolTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<qt><p style=\"white-space: pre-wrap\">%1</p></qt>")
        .arg(beginning(text, toolTipLimit).toHtmlEscaped());
}
