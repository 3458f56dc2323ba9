#include "operations/TextToNumberOperation.h"

#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"
#include "operations/common/Warning.h"

QString TextToNumberOperation::root() const
{
    return tr("文本");
}

QString TextToNumberOperation::typeId() const
{
    return QStringLiteral("text.toNumber");
}

QString TextToNumberOperation::typeName() const
{
    return tr("文本转数值");
}

QString TextToNumberOperation::icon() const
{
    return QStringLiteral(":/images/text_tonumber.svg");
}

QString TextToNumberOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: %2 -> %3"), typeName(), m_sourceText,
                       displayVariableName(m_resultVar));
}

QString TextToNumberOperation::description() const
{
    return fillMarkers(tr("将 %1 解析为数值存入 %2"), m_sourceText,
                       displayVariableName(m_resultVar));
}

void TextToNumberOperation::run() const
{
    const QString text = resolveTextOperand(m_sourceText, scope);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber) {
        warn("[TextToNumber] 无法将", text, "解析为数值，已跳过");
        return;
    }
    storeNumberResult(scope, m_resultVar, number);
}
