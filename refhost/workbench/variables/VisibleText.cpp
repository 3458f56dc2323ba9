#include "refhost/workbench/variables/VisibleText.h"

#include <QLocale>

namespace {

constexpr ushort deleteCharacter = 0x7f;
constexpr ushort controlPictures = 0x2400;
constexpr ushort deletePicture = 0x2421;
constexpr ushort box = 0x25af;

constexpr ushort wideSpace = 0x3000;

/// The space that stands between Chinese characters, and is typed like them.
bool isWideSpace(QChar unit)
{
    return unit.unicode() == wideSpace;
}

bool isFirstOfPair(QStringView text, int i)
{
    return text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
}

} // namespace

bool isInvisible(QChar unit)
{
    const ushort code = unit.unicode();
    if (code < ' ' || (code >= deleteCharacter && code <= 0xa0) || code == 0xad || code == 0xfeff)
        return true;
    // Spaces and marks of direction, separators, and what QTextLayout takes for its own.
    return (code >= 0x2000 && code <= 0x200f) || (code >= 0x2028 && code <= 0x202f) ||
           (code >= 0x205f && code <= 0x206f) || (code >= 0xfdd0 && code <= 0xfdef) ||
           (code >= 0xfff9 && code <= 0xfffc) || code >= 0xfffe || code == wideSpace;
}

QChar visibleUnit(QChar unit)
{
    switch (unit.unicode()) {
    case '\n':
        return QChar(0x21b5);
    case '\r':
        return QChar(0x2190); // fonts have it, unlike the sign of its own
    case '\t':
        return QChar(0x21e5);
    case 0xa0:
        return QChar(0x237d);
    case wideSpace:
        return QChar(0x25a1);
    case deleteCharacter:
        return QChar(deletePicture);
    default:
        break;
    }
    if (unit.unicode() < ' ')
        return QChar(controlPictures + unit.unicode());
    return isInvisible(unit) ? QChar(box) : unit;
}

QString visibleText(QStringView text)
{
    QString shown = text.toString();
    for (int i = 0; i < shown.size(); ++i) {
        if (isFirstOfPair(text, i))
            ++i;
        else
            shown[i] = shown.at(i).isSurrogate() ? QChar(QChar::ReplacementCharacter)
                                                 : visibleUnit(shown.at(i));
    }
    return shown;
}

bool isPlainLine(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (isFirstOfPair(text, i))
            ++i;
        else if (text.at(i).isSurrogate() || (isInvisible(text.at(i)) && !isWideSpace(text.at(i))))
            return false;
    }
    return true;
}

QString groupedNumber(qint64 number)
{
    return QLocale(QLocale::Chinese, QLocale::China).toString(number);
}
