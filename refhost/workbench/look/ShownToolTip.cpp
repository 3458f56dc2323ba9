#include "refhost/workbench/look/ShownToolTip.h"

#include "refhost/workbench/values/TextBeginning.h"

namespace {

constexpr int limit = 2000; ///< in UTF-16 code units

} // namespace

QString shownToolTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    QString shown = textBeginning(text, limit);
    if (shown.size() < text.size())
        shown += QChar(0x2026);
    return QStringLiteral("<qt><p style=\"white-space: pre-wrap\">%1</p></qt>")
        .arg(shown.toHtmlEscaped());
}
