#include "operations/TextReplaceOperation.h"

#include "operations/common/Concatenation.h"
#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"
#include "operations/common/TextReplacement.h"
#include "operations/common/TextSearch.h"

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
    const auto replaced = m_replaceScope == firstOnly ? replacedFirst : replacedText;
    storeStringResult(scope, m_resultVar,
                      replaced(text, search, replacement, caseSensitivity(m_ignoreCase)));
}
