#include "operations/TextAppendOperation.h"

#include "operations/common/Concatenation.h"
#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"

QString TextAppendOperation::root() const
{
    return tr("文本");
}

QString TextAppendOperation::typeId() const
{
    return QStringLiteral("text.append");
}

QString TextAppendOperation::typeName() const
{
    return tr("添加文本");
}

QString TextAppendOperation::icon() const
{
    return QStringLiteral(":/images/text_append.svg");
}

QString TextAppendOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: %2 + %3 -> %4"), typeName(), m_sourceText, m_appendText,
                       displayVariableName(m_resultVar));
}

QString TextAppendOperation::description() const
{
    // The sentence says what is put after what, so the added text comes first.
    return fillMarkers(tr("将 %1 添加到 %2 之后，存入 %3"), m_appendText, m_sourceText,
                       displayVariableName(m_resultVar));
}

void TextAppendOperation::run() const
{
    const QString source = resolveTextOperand(m_sourceText, scope);
    const QString added = resolveTextOperand(m_appendText, scope);
    storeStringResult(scope, m_resultVar, concatenated({source, added}));
}
