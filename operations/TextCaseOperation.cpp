#include "operations/TextCaseOperation.h"

#include "operations/common/CaseConversion.h"
#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"
#include "operations/common/Warning.h"

namespace {

enum CaseMode : int { Upper, Lower, CapitalFirst };

/// In lower case, with the first UTF-16 code unit in upper case where it has one of a single unit.
QString capitalized(const QString &text)
{
    QString result = toLowerText(text);
    if (!result.isEmpty() && result.at(0) != result.at(0).toUpper())
        result[0] = result.at(0).toUpper();
    return result;
}

QString converted(const QString &text, int mode)
{
    switch (mode) {
    case Upper:
        return toUpperText(text);
    case Lower:
        return toLowerText(text);
    default:
        return capitalized(text);
    }
}

} // namespace

QString TextCaseOperation::root() const
{
    return tr("文本");
}

QString TextCaseOperation::typeId() const
{
    return QStringLiteral("text.case");
}

QString TextCaseOperation::typeName() const
{
    return tr("转换大小写");
}

QString TextCaseOperation::icon() const
{
    return QStringLiteral(":/images/text_case.svg");
}

QString TextCaseOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: 模式=%2 %3 -> %4"), typeName(), caseModeText(),
                       m_sourceText, displayVariableName(m_resultVar));
}

QString TextCaseOperation::description() const
{
    return fillMarkers(tr("将 %1 转换为%2，存入 %3"), m_sourceText, caseModeText(),
                       displayVariableName(m_resultVar));
}

QString TextCaseOperation::caseModeText() const
{
    switch (m_mode) {
    case Lower:
        return tr("小写");
    case CapitalFirst:
        return tr("首字母大写");
    default:
        return tr("大写");
    }
}

void TextCaseOperation::run() const
{
    const QString text = resolveTextOperand(m_sourceText, scope);
    if (m_mode < Upper || m_mode > CapitalFirst) {
        warnUnknownMode(staticMetaObject, "未知模式", m_mode);
        return;
    }
    storeStringResult(scope, m_resultVar, converted(text, m_mode));
}
