#include "operations/TextReverseOperation.h"

#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"

#include <algorithm>

QString TextReverseOperation::root() const
{
    return tr("文本");
}

QString TextReverseOperation::typeId() const
{
    return QStringLiteral("text.reverse");
}

QString TextReverseOperation::typeName() const
{
    return tr("反转文本");
}

QString TextReverseOperation::icon() const
{
    return QStringLiteral(":/images/text_reverse.svg");
}

QString TextReverseOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: 反转 %2 -> %3"), typeName(), m_sourceText,
                       displayVariableName(m_resultVar));
}

QString TextReverseOperation::description() const
{
    return fillMarkers(tr("将 %1 反转后存入 %2"), m_sourceText, displayVariableName(m_resultVar));
}

void TextReverseOperation::run() const
{
    QString text = resolveTextOperand(m_sourceText, scope);
    std::reverse(text.begin(), text.end());
    storeStringResult(scope, m_resultVar, text);
}
