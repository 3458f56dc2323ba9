#include "refhost/workbench/editor/ExactText.h"

#include "refhost/workbench/editor/SpecialCharacterObject.h"
#include "refhost/workbench/values/InvisibleCharacter.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

/// The text of the part of a fragment between two positions of the document.
QString fragmentText(const QTextFragment &fragment, int from, int to)
{
    const int first = qMax(from, fragment.position());
    const int size = qMin(to, fragment.position() + fragment.length()) - first;
    if (size <= 0)
        return {};
    const QString character = SpecialCharacterObject::characterOf(fragment.charFormat());
    return character.isEmpty() ? fragment.text().mid(first - fragment.position(), size)
                               : character.repeated(size);
}

/// The units that each position of the document stands for.
QVector<int> unitsPerPosition(const QTextDocument &document)
{
    QVector<int> units;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            const QString character = SpecialCharacterObject::characterOf(fragment.charFormat());
            units += QVector<int>(fragment.length(), qMax(1, character.size()));
        }
        units.append(1); // the line feed
    }
    units.removeLast();
    return units;
}

/// What a document and a text have in common at both ends: in positions and in units.
struct CommonEnds
{
    int positionsBefore = 0;
    int before = 0;
    int positionsAfter = 0;
    int after = 0;
};

CommonEnds commonEnds(const QVector<int> &units, const QString &old, const QString &text)
{
    CommonEnds ends;
    while (ends.positionsBefore < units.size()) {
        const int size = units.at(ends.positionsBefore);
        if (old.midRef(ends.before, size) != text.midRef(ends.before, size))
            break;
        ends.before += size;
        ++ends.positionsBefore;
    }
    const int most = qMin(old.size(), text.size()) - ends.before;
    while (ends.positionsBefore + ends.positionsAfter < units.size()) {
        const int size = units.at(units.size() - 1 - ends.positionsAfter);
        const int after = ends.after + size;
        if (after > most ||
            old.midRef(old.size() - after, size) != text.midRef(text.size() - after, size))
            break;
        ends.after = after;
        ++ends.positionsAfter;
    }
    return ends;
}

/// Moves the ends apart where they would split a surrogate pair.
void keepPairsWhole(CommonEnds &ends, const QString &text)
{
    if (ends.before > 0 && text.at(ends.before - 1).isHighSurrogate()) {
        --ends.before;
        --ends.positionsBefore;
    }
    if (ends.after > 0 && text.at(text.size() - ends.after).isLowSurrogate()) {
        --ends.after;
        --ends.positionsAfter;
    }
}

} // namespace

QString exactText(const QTextDocument &document, int from, int to)
{
    QString text;
    for (QTextBlock block = document.findBlock(from); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part)
            text += fragmentText(part.fragment(), from, to);
        const int end = block.position() + block.length() - 1;
        if (end >= to)
            break;
        text += QLatin1Char('\n');
    }
    return text;
}

QString exactText(const QTextDocument &document)
{
    return exactText(document, 0, document.characterCount() - 1);
}

void insertExactText(QTextCursor &cursor, const QString &text)
{
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const QChar lineFeed = QLatin1Char('\n');
    for (int i = 0; i < text.size();) {
        const int size = text.at(i) == lineFeed ? 0 : invisibleSize(text, i);
        if (size > 0) {
            cursor.insertText(QString(QChar(QChar::ObjectReplacementCharacter)),
                              SpecialCharacterObject::formatOf(text.mid(i, size)));
            i += size;
            continue;
        }
        int end = i;
        while (end < text.size() && (text.at(end) == lineFeed || invisibleSize(text, end) == 0))
            end += text.at(end).isHighSurrogate() ? 2 : 1;
        cursor.insertText(text.mid(i, end - i), QTextCharFormat());
        i = end;
    }
    cursor.endEditBlock();
}

void setExactText(QTextDocument &document, const QString &text)
{
    const QString old = exactText(document);
    if (old == text)
        return;
    CommonEnds ends = commonEnds(unitsPerPosition(document), old, text);
    keepPairsWhole(ends, text);
    QTextCursor cursor(&document);
    cursor.setPosition(ends.positionsBefore);
    cursor.setPosition(document.characterCount() - 1 - ends.positionsAfter,
                       QTextCursor::KeepAnchor);
    insertExactText(cursor, text.mid(ends.before, text.size() - ends.after - ends.before));
}
