#include "tests/fuzz/ByteSource.h"

namespace {

// Letters with several forms, letters that grow, white space, halves of pairs that have a case, and
// what numbers and references are written with.
constexpr char16_t units[] = {
    u'a',   u'b',   u'A',   u'B',   u'k',   u'K',   0x212A, u's',   0x017F, 0x00DF, 0x1E9E,
    0x0130, 0x0149, 0xFB03, 0x03C3, 0x03C2, 0x03A3, 0x4E2D, 0x6587, u' ',   u'\t',  u'\n',
    0x3000, 0x00A0, 0xD801, 0xDC00, 0xDC28, 0xD83D, 0xDE00, u'0',   u'1',   u'9',   u'.',
    u',',   u'-',   u'+',   u'e',   u'$',   u'%',   u'[',   u']',   0x0000, 0xFEFF, 0xFFFF,
};

} // namespace

QChar ByteSource::takeUnit()
{
    const int choice = takeByte();
    if (choice < 0x10)
        return QChar(static_cast<ushort>(takeByte() << 8 | takeByte()));
    return QChar(static_cast<ushort>(units[static_cast<std::size_t>(choice) % std::size(units)]));
}

QString ByteSource::takeText(int mostUnits)
{
    QString text;
    for (int pieces = takeBelow(24); pieces > 0 && text.size() < mostUnits; --pieces) {
        if (takeBelow(4) != 0)
            text += takeUnit();
        else
            text += text.right(1 + takeBelow(64)).repeated(1 + takeBelow(32));
    }
    return text.left(mostUnits);
}
