#include "operations/TextTrimOperation.h"

#include "operations/common/Operand.h"
#include "operations/common/Presentation.h"
#include "operations/common/ResultStore.h"
#include "operations/common/Warning.h"

#include <algorithm>

namespace {

enum TrimMode : int { AtStart, AtEnd, AtBothEnds, Everywhere };

bool isSpace(QChar unit)
{
    return unit.isSpace();
}

/// Without the white space at the chosen ends.
QString trimEnds(const QString &text, bool atStart, bool atEnd)
{
    auto begin = text.cbegin();
    auto end = text.cend();
    if (atStart)
        begin = std::find_if_not(begin, end, isSpace);
    if (atEnd) {
        while (end != begin && isSpace(*(end - 1)))
            --end;
    }
    return text.mid(static_cast<int>(begin - text.cbegin()), static_cast<int>(end - begin));
}

QString withoutSpaces(const QString &text)
{
    const auto firstSpace = std::find_if(text.cbegin(), text.cend(), isSpace);
    if (firstSpace == text.cend())
        return text;
    QString kept(text.size(), Qt::Uninitialized);
    const auto begin = kept.begin();
    auto end = std::copy(text.cbegin(), firstSpace, begin);
    end = std::remove_copy_if(firstSpace, text.cend(), end, isSpace);
    kept.truncate(static_cast<int>(end - begin));
    return kept;
}

} // namespace

QString TextTrimOperation::root() const
{
    return tr("文本");
}

QString TextTrimOperation::typeId() const
{
    return QStringLiteral("text.trim");
}

QString TextTrimOperation::typeName() const
{
    return tr("文本去空格");
}

QString TextTrimOperation::icon() const
{
    return QStringLiteral(":/images/text_trim.svg");
}

QString TextTrimOperation::toString() const
{
    return fillMarkers(QStringLiteral("%1: 模式=%2 去空格 %3 -> %4"), typeName(), trimModeText(),
                       m_sourceText, displayVariableName(m_resultVar));
}

QString TextTrimOperation::description() const
{
    return fillMarkers(tr("去除 %1 %2的空格，存入 %3"), m_sourceText, trimModeText(),
                       displayVariableName(m_resultVar));
}

QString TextTrimOperation::trimModeText() const
{
    switch (m_mode) {
    case AtEnd:
        return tr("尾部");
    case AtBothEnds:
        return tr("头尾");
    case Everywhere:
        return tr("所有");
    default:
        return tr("头部");
    }
}

void TextTrimOperation::run() const
{
    const QString text = resolveTextOperand(m_sourceText, scope);
    if (m_mode < AtStart || m_mode > Everywhere) {
        warnUnknownMode(staticMetaObject, "未知模式", m_mode);
        return;
    }
    const QString trimmed = m_mode == Everywhere
                                ? withoutSpaces(text)
                                : trimEnds(text, m_mode != AtEnd, m_mode != AtStart);
    storeStringResult(scope, m_resultVar, trimmed);
}
