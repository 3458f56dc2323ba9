#include "operations/TextPadOperation.h"

#include "operations/common/Concatenation.h"
#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"

#include <algorithm>

namespace {

// Every other position acts as the left.
constexpr int middle = 1;
constexpr int right = 2;

/// As much of the fill as the total length leaves room for; all of it when there is no total.
QStringView fittingFill(const QString &fill, int textLength, int totalLength)
{
    const int room = totalLength < 1 ? fill.size() : totalLength - textLength;
    return QStringView(fill).left(std::clamp(room, 0, fill.size()));
}

} // namespace

QString TextPadOperation::root() const
{
    return tr("文本");
}

QString TextPadOperation::typeId() const
{
    return QStringLiteral("text.pad");
}

QString TextPadOperation::typeName() const
{
    return tr("填充文本");
}

QString TextPadOperation::icon() const
{
    return QStringLiteral(":/images/text_pad.svg");
}

QString TextPadOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: 位置=%2 填充[%3] 总长=%4 %5 -> %6"), typeName(),
                       positionText(), m_padText, m_totalLength, m_sourceText,
                       displayVariableName(m_resultVar));
}

QString TextPadOperation::description() const
{
    return fillMarkers(tr("向 %1 的 %2 位置插入填充文本 %3（总长 %4）存入 %5"), m_sourceText,
                       positionText(), m_padText, m_totalLength, displayVariableName(m_resultVar));
}

QString TextPadOperation::positionText() const
{
    switch (m_position) {
    case middle:
        return tr("中间");
    case right:
        return tr("右边");
    default:
        return tr("左边");
    }
}

void TextPadOperation::run() const
{
    const QString text = resolveTextOperand(m_sourceText, scope);
    const QString fill = resolveTextOperand(m_padText, scope);
    const int total = resolveIntOperand(scope, m_totalLength, 0);
    // Read in every position, though only the middle uses it.
    const int chosen = std::clamp(resolveIntOperand(scope, m_index, 0), 0, text.size());
    int place = 0;
    if (m_position == middle)
        place = chosen;
    else if (m_position == right)
        place = text.size();
    const QStringView source(text);
    storeStringResult(scope, m_resultVar,
                      concatenated({source.left(place), fittingFill(fill, text.size(), total),
                                    source.mid(place)}));
}
