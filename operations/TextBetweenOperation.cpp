#include "operations/TextBetweenOperation.h"

#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"
#include "operations/common/TextSearch.h"
#include "operations/common/Warning.h"

namespace {

enum CutMode : int { BeforeMarker, AfterMarker, BetweenMarkers };

/// The piece that `mode` asks for; empty when a marker that it needs is not there.
QString cut(const QString &text, int mode, const QString &startMarker, const QString &endMarker,
            Qt::CaseSensitivity sensitivity)
{
    int begin = 0;
    if (mode != BeforeMarker) {
        const int marker = indexOfText(text, startMarker, 0, sensitivity);
        if (marker < 0)
            return {};
        begin = marker + startMarker.size();
    }
    if (mode == AfterMarker)
        return text.mid(begin);
    const int end = indexOfText(text, endMarker, begin, sensitivity);
    return end < 0 ? QString() : text.mid(begin, end - begin);
}

} // namespace

QString TextBetweenOperation::root() const
{
    return tr("文本");
}

QString TextBetweenOperation::typeId() const
{
    return QStringLiteral("text.between");
}

QString TextBetweenOperation::typeName() const
{
    return tr("截取文本");
}

QString TextBetweenOperation::icon() const
{
    return QStringLiteral(":/images/text_between.svg");
}

QString TextBetweenOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: 位置=%2 [%3..%4] %5 -> %6"), typeName(), m_cutMode,
                       m_startMarker, m_endMarker, m_sourceText, displayVariableName(m_resultVar));
}

QString TextBetweenOperation::description() const
{
    return fillMarkers(tr("按标识从 %1 中截取文本存入 %2"), m_sourceText,
                       displayVariableName(m_resultVar));
}

void TextBetweenOperation::run() const
{
    const QString text = resolveTextOperand(m_sourceText, scope);
    const QString start = resolveTextOperand(m_startMarker, scope);
    const QString end = resolveTextOperand(m_endMarker, scope);
    if (m_cutMode < BeforeMarker || m_cutMode > BetweenMarkers) {
        warnUnknownMode(staticMetaObject, "未知截取位置", m_cutMode);
        return;
    }
    const QString piece = cut(text, m_cutMode, start, end, caseSensitivity(m_ignoreCase));
    storeStringResult(scope, m_resultVar, piece);
}
