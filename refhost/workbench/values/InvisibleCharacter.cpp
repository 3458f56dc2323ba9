#include "refhost/workbench/values/InvisibleCharacter.h"

#include "refhost/workbench/values/TextBeginning.h"

#include <QHash>

namespace {

/// Names where few fonts have a picture.
const QHash<uint, QString> &signsOfTheirOwn()
{
    static const QHash<uint, QString> own{
        {0x00, QStringLiteral("NUL")},    {0x09, QStringLiteral("⇥")},
        {0x0a, QStringLiteral("↵")},      {0x0d, QStringLiteral("←")},
        {0x1b, QStringLiteral("ESC")},    {0x7f, QStringLiteral("DEL")},
        {0xa0, QStringLiteral("⍽")},      {0xad, QStringLiteral("SHY")},
        {0x200b, QStringLiteral("ZWSP")}, {0x200c, QStringLiteral("ZWNJ")},
        {0x200d, QStringLiteral("ZWJ")},  {0x200e, QStringLiteral("LRM")},
        {0x200f, QStringLiteral("RLM")},  {0x2028, QStringLiteral("LS")},
        {0x2029, QStringLiteral("PS")},   {0x202f, QStringLiteral("NNBSP")},
        {0x2060, QStringLiteral("WJ")},   {0x3000, QStringLiteral("□")},
        {0xfeff, QStringLiteral("BOM")},  {0xfffc, QStringLiteral("OBJ")},
    };
    return own;
}

/// The character at `index` as UCS-4; half a pair stands for itself.
uint characterAt(QStringView text, int index)
{
    const QChar unit = text.at(index);
    return isPairAt(text, index) ? QChar::surrogateToUcs4(unit, text.at(index + 1))
                                 : unit.unicode();
}

bool isInvisible(uint character)
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

int invisibleSize(QStringView text, int index)
{
    const uint character = characterAt(text, index);
    if (!isInvisible(character))
        return 0;
    return QChar::requiresSurrogates(character) ? 2 : 1;
}

QString invisibleSign(QStringView character)
{
    const uint code = characterAt(character, 0);
    const auto found = signsOfTheirOwn().constFind(code);
    if (found != signsOfTheirOwn().cend())
        return *found;
    return QStringLiteral("U+%1").arg(code, 4, 16, QLatin1Char('0')).toUpper();
}
