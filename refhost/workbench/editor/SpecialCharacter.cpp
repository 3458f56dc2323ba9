#include "refhost/workbench/editor/SpecialCharacter.h"

#include <QHash>

namespace {

using Marks = QHash<uint, QString>;

const Marks &marks()
{
    static const Marks marks{
        {0x00, QStringLiteral("NUL")},    {0x09, QStringLiteral("→")},
        {0x0a, QStringLiteral("↵")},      {0x0d, QStringLiteral("CR")},
        {0x1b, QStringLiteral("ESC")},    {0x7f, QStringLiteral("DEL")},
        {0xa0, QStringLiteral("NBSP")},   {0xad, QStringLiteral("SHY")},
        {0x200b, QStringLiteral("ZWSP")}, {0x200c, QStringLiteral("ZWNJ")},
        {0x200d, QStringLiteral("ZWJ")},  {0x200e, QStringLiteral("LRM")},
        {0x200f, QStringLiteral("RLM")},  {0x2028, QStringLiteral("LS")},
        {0x2029, QStringLiteral("PS")},   {0x202f, QStringLiteral("NNBSP")},
        {0x2060, QStringLiteral("WJ")},   {0x3000, QStringLiteral("□")},
        {0xfeff, QStringLiteral("BOM")},  {0xfffc, QStringLiteral("OBJ")},
    };
    return marks;
}

/// The character at `index` as UCS-4; half a pair stands for itself.
uint characterAt(QStringView text, int index)
{
    const QChar unit = text.at(index);
    const bool paired =
        unit.isHighSurrogate() && index + 1 < text.size() && text.at(index + 1).isLowSurrogate();
    return paired ? QChar::surrogateToUcs4(unit, text.at(index + 1)) : unit.unicode();
}

bool isSpecial(uint character)
{
    constexpr uint objectReplacement = 0xfffc;
    if (character == ' ')
        return false;
    if (character == objectReplacement || QChar::isNonCharacter(character))
        return true;
    switch (QChar::category(character)) {
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
        return true;
    default:
        return false;
    }
}

} // namespace

int specialSize(QStringView text, int index)
{
    const uint character = characterAt(text, index);
    if (!isSpecial(character))
        return 0;
    return QChar::requiresSurrogates(character) ? 2 : 1;
}

QString specialMark(QStringView character)
{
    const uint code = characterAt(character, 0);
    const auto found = marks().constFind(code);
    if (found != marks().cend())
        return *found;
    return QStringLiteral("U+%1").arg(code, 4, 16, QLatin1Char('0')).toUpper();
}

QString visibleText(const QString &text, int limit)
{
    QString visible;
    const int end = qMin(limit, text.size());
    for (int i = 0; i < end;) {
        const int special = specialSize(text, i);
        const int size = special == 0 && text.at(i).isHighSurrogate() ? 2 : qMax(1, special);
        const QStringView character = QStringView(text).mid(i, size);
        visible += special == 0 ? character.toString()
                                : QStringLiteral("‹%1›").arg(specialMark(character));
        i += size;
    }
    return text.size() > limit ? visible + QStringLiteral("…") : visible;
}

QVector<char16_t> offeredCharacters()
{
    return {0x09, 0x0a, 0x0d, 0xa0, 0x3000, 0x200b, 0xfeff, 0x00};
}
