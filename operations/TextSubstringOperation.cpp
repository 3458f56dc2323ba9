#include "operations/TextSubstringOperation.h"

#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"

#include <algorithm>

namespace {

/// The length mode that counts; every other one takes all to the end.
constexpr int countedMode = 1;

} // namespace

QString TextSubstringOperation::root() const
{
    return tr("文本");
}

QString TextSubstringOperation::typeId() const
{
    return QStringLiteral("text.substring");
}

QString TextSubstringOperation::typeName() const
{
    return tr("获取子文本");
}

QString TextSubstringOperation::icon() const
{
    return QStringLiteral(":/images/text_substring.svg");
}

QString TextSubstringOperation::toString() const
{
    // The count is shown in every mode, also where it is not read.
    return fillMarkers(QStringLiteral("%1: %2[%3,%4] -> %5"), typeName(), m_sourceText,
                       m_startIndex, m_charCount, displayVariableName(m_resultVar));
}

QString TextSubstringOperation::description() const
{
    return fillMarkers(tr("从 %1 的第 %2 位取 %3 个字符存入 %4"), m_sourceText, m_startIndex,
                       m_charCount, displayVariableName(m_resultVar));
}

void TextSubstringOperation::run() const
{
    const QString text = resolveTextOperand(m_sourceText, scope);
    const int start = std::clamp(resolveIntOperand(scope, m_startIndex, 0), 0, text.size());
    int count = text.size() - start;
    if (m_lengthMode == countedMode)
        count = std::clamp(resolveIntOperand(scope, m_charCount, 0), 0, count);
    storeStringResult(scope, m_resultVar, text.mid(start, count));
}
