#include "operations/TextFromNumberOperation.h"

#include "operations/common/Concatenation.h"
#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"
#include "operations/common/Warning.h"

#include <QLocale>
#include <QtNumeric>

#include <algorithm>

namespace {

/// The most digits that a double can have behind the decimal point; all further ones are zeros.
constexpr int mostDecimals = 1074;

QString withZeros(const QString &text, int count, QChar zero)
{
    QString result = unwrittenText(qint64(text.size()) + count);
    std::fill_n(std::copy(text.cbegin(), text.cend(), result.data()), count, zero);
    return result;
}

QString formatted(double number, int decimals, bool useGrouping)
{
    const int digits = std::min(decimals, mostDecimals);
    // The default locale is the host's choice; only the grouping form follows it.
    QString text = useGrouping ? QLocale().toString(number, 'f', digits)
                               : QString::number(number, 'f', digits);
    if (decimals == digits || !qIsFinite(number))
        return text;
    const QChar zero = useGrouping ? QLocale().zeroDigit() : QLatin1Char('0');
    return withZeros(text, decimals - digits, zero);
}

} // namespace

QString TextFromNumberOperation::root() const
{
    return tr("文本");
}

QString TextFromNumberOperation::typeId() const
{
    return QStringLiteral("text.fromNumber");
}

QString TextFromNumberOperation::typeName() const
{
    return tr("数值转文本");
}

QString TextFromNumberOperation::icon() const
{
    return QStringLiteral(":/images/text_fromnumber.svg");
}

QString TextFromNumberOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: %2 (小数=%3, 千分位=%4) -> %5"), typeName(), m_value,
                       m_decimals, m_useGrouping ? 1 : 0, displayVariableName(m_resultVar));
}

QString TextFromNumberOperation::description() const
{
    return fillMarkers(tr("将 %1 转为文本（小数位数 %2）存入 %3"), m_value, m_decimals,
                       displayVariableName(m_resultVar));
}

void TextFromNumberOperation::run() const
{
    bool isNumber = false;
    const double number = resolveNumberOperand(scope, m_value, &isNumber);
    if (!isNumber) {
        warn("[TextFromNumber] 无法解析原数值", m_value, "，已跳过");
        return;
    }
    const int decimals = std::max(0, resolveIntOperand(scope, m_decimals, 0));
    storeStringResult(scope, m_resultVar, formatted(number, decimals, m_useGrouping));
}
