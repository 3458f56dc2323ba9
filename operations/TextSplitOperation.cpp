#include "operations/TextSplitOperation.h"

#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/TextSearch.h"
#include "operations/common/Warning.h"

#include "VariableScope.h"

#include <QVariantList>

#include <algorithm>

namespace {

// The modes are read in three ways, each as it is: running takes all but 0 for the separator, the
// summary all but 1 for the width, and the sentence knows neither in any other.
constexpr int byWidth = 0;
constexpr int bySeparator = 1;

/// Pieces of `width` units, the last one shorter if need be; none of an empty text.
QVariantList splitByWidth(const QString &text, int width)
{
    QVariantList pieces;
    pieces.reserve(text.size() / width + 1);
    for (qint64 position = 0; position < text.size(); position += width)
        pieces.append(text.mid(static_cast<int>(position), width));
    return pieces;
}

/// The pieces between the separators, empty ones included; the whole text without a separator.
QVariantList splitBySeparator(const QString &text, const QString &separator)
{
    if (separator.isEmpty())
        return {text};
    QVariantList pieces;
    TextSearch occurrence(text, separator, Qt::CaseSensitive);
    int begin = 0;
    for (int end = occurrence.next(0); end >= 0; end = occurrence.next(begin)) {
        pieces.append(text.mid(begin, end - begin));
        begin = end + separator.size();
    }
    pieces.append(text.mid(begin));
    return pieces;
}

void storeList(VariableScope &variables, const QString &name, const QVariantList &list)
{
    if (variables.typeOf(name) != VarType::List) {
        warn("[TextOp] 变量", name, "未声明为列表，已跳过");
        return;
    }
    variables.set(name, list);
}

} // namespace

QString TextSplitOperation::root() const
{
    return tr("文本");
}

QString TextSplitOperation::typeId() const
{
    return QStringLiteral("text.split");
}

QString TextSplitOperation::typeName() const
{
    return tr("分割文本");
}

QString TextSplitOperation::icon() const
{
    return QStringLiteral(":/images/text_split.svg");
}

QString TextSplitOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: 类型=%2 %3 -> %4"), typeName(), splitModeText(),
                       m_sourceText, displayVariableName(m_resultVar));
}

QString TextSplitOperation::description() const
{
    const QString result = displayVariableName(m_resultVar);
    switch (m_splitMode) {
    case byWidth:
        return fillMarkers(tr("将 %1 按固定宽度 %2 分割存入 %3"), m_sourceText, m_width, result);
    case bySeparator:
        return fillMarkers(tr("将 %1 按自定义分隔符 %2 分割存入 %3"), m_sourceText, m_separator,
                           result);
    default:
        return fillMarkers(tr("将 %1 分割存入 %2"), m_sourceText, result);
    }
}

QString TextSplitOperation::splitModeText() const
{
    return m_splitMode == bySeparator ? tr("自定义字符") : tr("固定宽度");
}

void TextSplitOperation::run() const
{
    const QString text = resolveTextOperand(m_sourceText, scope);
    QVariantList pieces;
    if (m_splitMode == byWidth)
        pieces = splitByWidth(text, std::max(1, resolveIntOperand(scope, m_width, 1)));
    else
        pieces = splitBySeparator(text, resolveTextOperand(m_separator, scope));
    storeList(*scope, m_resultVar, pieces);
}
