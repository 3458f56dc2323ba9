#include "operations/TextFindOperation.h"

#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"
#include "operations/common/TextSearch.h"

QString TextFindOperation::root() const
{
    return tr("文本");
}

QString TextFindOperation::typeId() const
{
    return QStringLiteral("text.find");
}

QString TextFindOperation::typeName() const
{
    return tr("查询子文本");
}

QString TextFindOperation::icon() const
{
    return QStringLiteral(":/images/text_find.svg");
}

QString TextFindOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: 查找 %2 in %3 -> %4"), typeName(), m_searchText,
                       m_sourceText, displayVariableName(m_resultVar));
}

QString TextFindOperation::description() const
{
    return fillMarkers(tr("在 %1 中查找 %2 的位置存入 %3"), m_sourceText, m_searchText,
                       displayVariableName(m_resultVar));
}

void TextFindOperation::run() const
{
    const QString text = resolveTextOperand(m_sourceText, scope);
    const QString search = resolveTextOperand(m_searchText, scope);
    const int position = indexOfText(text, search, 0, caseSensitivity(m_ignoreCase));
    storeNumberResult(scope, m_resultVar, position);
}
