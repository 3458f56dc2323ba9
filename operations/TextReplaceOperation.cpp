#include "operations/TextReplaceOperation.h"

#include "operations/common/Concatenation.h"
#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"
#include "operations/common/TextSearch.h"

#include <QVarLengthArray>

#include <algorithm>

namespace {

/// The scope that replaces once; every other one replaces all.
constexpr int firstOnly = 1;

QString replacedFirst(const QString &text, const QString &search, const QString &replacement,
                      Qt::CaseSensitivity sensitivity)
{
    const int position = indexOfText(text, search, 0, sensitivity);
    if (position < 0)
        return text;
    const QStringView source(text);
    return concatenated({source.left(position), replacement, source.mid(position + search.size())});
}

using Positions = QVarLengthArray<int, 256>;

/// Where the search text stands, from left to right and without overlaps. An empty one stands
/// before every unit and at the end.
Positions occurrences(const QString &text, const QString &search, Qt::CaseSensitivity sensitivity)
{
    Positions positions;
    TextSearch occurrence(text, search, sensitivity);
    const int step = std::max(1, search.size());
    for (int i = occurrence.next(0); i >= 0; i = occurrence.next(i + step))
        positions.append(i);
    return positions;
}

/// Appends a piece at `end`, which moves on. Most pieces are short, and then a call costs more than
/// the copying.
void append(QChar *&end, const QChar *begin, int size)
{
    constexpr int shortPiece = 8;
    if (size > shortPiece) {
        end = std::copy_n(begin, size, end);
        return;
    }
    for (int i = 0; i < size; ++i)
        *end++ = begin[i];
}

/// With `replacement` in place of the `length` units at each of the positions.
QString replacedAt(const Positions &positions, const QString &text, int length,
                   const QString &replacement)
{
    const qint64 growth = qint64(replacement.size() - length) * positions.size();
    QString result = unwrittenText(text.size() + growth);
    QChar *end = result.data();
    int rest = 0;
    for (const int position : positions) {
        append(end, text.constData() + rest, position - rest);
        append(end, replacement.constData(), replacement.size());
        rest = position + length;
    }
    append(end, text.constData() + rest, text.size() - rest);
    return result;
}

/// All occurrences in one pass; what is put in is not searched again.
QString replacedAll(const QString &text, const QString &search, const QString &replacement,
                    Qt::CaseSensitivity sensitivity)
{
    const Positions positions = occurrences(text, search, sensitivity);
    return positions.isEmpty() ? text : replacedAt(positions, text, search.size(), replacement);
}

} // namespace

QString TextReplaceOperation::root() const
{
    return tr("文本");
}

QString TextReplaceOperation::typeId() const
{
    return QStringLiteral("text.replace");
}

QString TextReplaceOperation::typeName() const
{
    return tr("替换文本");
}

QString TextReplaceOperation::icon() const
{
    return QStringLiteral(":/images/text_replace.svg");
}

QString TextReplaceOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: %2 -> %3 (范围=%4) %5 -> %6"), typeName(), m_oldText,
                       m_newText, replaceScopeText(), m_sourceText,
                       displayVariableName(m_resultVar));
}

QString TextReplaceOperation::description() const
{
    return fillMarkers(tr("将 %1 中的 %2 替换为 %3（范围 %4）存入 %5"), m_sourceText, m_oldText,
                       m_newText, replaceScopeText(), displayVariableName(m_resultVar));
}

QString TextReplaceOperation::replaceScopeText() const
{
    return m_replaceScope == firstOnly ? tr("首个") : tr("全部");
}

void TextReplaceOperation::run() const
{
    const QString text = resolveTextOperand(m_sourceText, scope);
    const QString search = resolveTextOperand(m_oldText, scope);
    const QString replacement = resolveTextOperand(m_newText, scope);
    const auto replaced = m_replaceScope == firstOnly ? replacedFirst : replacedAll;
    storeStringResult(scope, m_resultVar,
                      replaced(text, search, replacement, caseSensitivity(m_ignoreCase)));
}
