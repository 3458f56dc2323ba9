#include "refhost/workbench/values/VisibleText.h"

#include "refhost/workbench/values/InvisibleCharacter.h"
#include "refhost/workbench/values/TextBeginning.h"

namespace {

/// The space that stands between Chinese characters, and is typed like them.
constexpr ushort wideSpace = 0x3000;
constexpr ushort box = 0x25af;

QString markOf(QStringView character)
{
    const QString sign = invisibleSign(character);
    return sign.size() == 1 ? sign : QStringLiteral("‹%1›").arg(sign);
}

QChar unitFor(QStringView character)
{
    if (character.size() == 1 && character.at(0).isSurrogate())
        return QChar::ReplacementCharacter;
    const QString sign = invisibleSign(character);
    return sign.size() == 1 ? sign.at(0) : QChar(box);
}

} // namespace

QString visibleText(const QString &text, int limit)
{
    const QString beginning = textBeginning(text, limit);
    QString visible;
    visible.reserve(beginning.size() + 1);
    for (int i = 0; i < beginning.size();) {
        const int size = isPairAt(beginning, i) ? 2 : 1;
        const QStringView character = QStringView(beginning).mid(i, size);
        if (invisibleSize(beginning, i) > 0)
            visible += markOf(character);
        else
            visible.append(character.data(), size);
        i += size;
    }
    return beginning.size() < text.size() ? visible + QStringLiteral("…") : visible;
}

QString visibleUnits(QStringView text)
{
    QString shown = text.toString();
    for (int i = 0; i < shown.size();) {
        const int size = isPairAt(text, i) ? 2 : 1;
        if (invisibleSize(text, i) > 0)
            shown.replace(i, size, QString(size, unitFor(text.mid(i, size))));
        i += size;
    }
    return shown;
}

bool isPlainLine(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (invisibleSize(text, i) > 0 && text.at(i).unicode() != wideSpace)
            return false;
        if (isPairAt(text, i))
            ++i;
    }
    return true;
}
