#include "operations/TextJoinOperation.h"

#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"
#include "operations/common/ValueText.h"
#include "operations/common/Warning.h"

#include "VariableScope.h"

#include <QVariantList>

namespace {

/// The elements of the variable called `name`; none, with one warning, when it is not declared as a
/// list, and none when it has no name.
QVariantList readList(const VariableScope &variables, const QString &name)
{
    if (name.isEmpty())
        return {};
    if (variables.typeOf(name) != VarType::List) {
        warn("[TextOp] 变量", name, "不是列表类型，已跳过");
        return {};
    }
    const QVariant value = variables.get(name);
    return isListLike(value) ? value.value<QVariantList>() : QVariantList();
}

} // namespace

QString TextJoinOperation::root() const
{
    return tr("文本");
}

QString TextJoinOperation::typeId() const
{
    return QStringLiteral("text.join");
}

QString TextJoinOperation::typeName() const
{
    return tr("拼接文本");
}

QString TextJoinOperation::icon() const
{
    return QStringLiteral(":/images/text_join.svg");
}

QString TextJoinOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: 列表 %2 以 %3 拼接 -> %4"), typeName(),
                       displayVariableName(m_listVar), m_separator,
                       displayVariableName(m_resultVar));
}

QString TextJoinOperation::description() const
{
    return fillMarkers(tr("将列表 %1 用 %2 拼接存入 %3"), displayVariableName(m_listVar),
                       m_separator, displayVariableName(m_resultVar));
}

void TextJoinOperation::run() const
{
    // A variable that is no list does not end the step: the result is the empty text then.
    const QVariantList elements = readList(*scope, m_listVar);
    const QString separator = resolveTextOperand(m_separator, scope);
    storeStringResult(scope, m_resultVar, listToText(elements, separator));
}
